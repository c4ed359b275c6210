// SPDX-License-Identifier: MIT
#pragma once

#include "publish/BookProgress.h"

#include <qpdf/Pipeline.hh>

#include <QByteArray>
#include <QFile>

// Writes a book's file and finds out at once when that fails, which the library that uses it would
// not tell for every kind of failure. Keeps the disk writing meanwhile, so that the flush at the
// end, which cannot be stopped, takes no long time.
class BookOutput : public Pipeline
{
public:
    // Throws PublishError, as do the others.
    BookOutput(const QString& path, BookProgress& progress);

    void write(const unsigned char* data, std::size_t bytes) override;
    void finish() override {}
    // After the last byte.
    void Close();

    qint64 CountBytes() const { return bytes_; }
    // Why the system has refused; empty when it has not.
    const QString& GetFailure() const { return failure_; }

private:
    void WriteOut(const char* data, qint64 bytes);
    void KeepWriting();

    QFile file_;
    BookProgress& progress_;
    QByteArray waiting_; // the library writes a few bytes at a time
    qint64 bytes_ = 0;
    qint64 begun_ = 0; // bytes of the file that the disk was told to write
    QString failure_;
};
