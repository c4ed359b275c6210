// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookProgress.h"

#include <QByteArray>
#include <QFile>

// Writes a book's file and tells at once when that fails. Keeps the disk writing meanwhile, so that
// the flush at the end, which cannot be stopped, takes no long time. All functions throw
// PublishError and BookStopped.
class BookOutput
{
public:
    BookOutput(const QString& path, BookProgress& progress);

    void Write(QByteArrayView bytes);
    // Bytes up to now.
    qint64 Count() const { return written_ + waiting_.size(); }
    // As many bytes as lie there.
    void Replace(qint64 place, QByteArrayView bytes);
    // Takes back what was written from there on.
    void CutTo(qint64 place);
    // After the last byte.
    void Close();

private:
    void WriteOut(QByteArrayView bytes);
    void WriteWaiting();
    void KeepWriting();
    [[noreturn]] void Fail() const;

    QFile file_;
    BookProgress& progress_;
    QByteArray waiting_; // small pieces
    qint64 written_ = 0;
    qint64 begun_ = 0; // bytes of the file that the disk was told to write
};
