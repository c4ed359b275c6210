// SPDX-License-Identifier: MIT
#pragma once

#include "platform/oldalbum/OldAlbumStream.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <optional>

// One run of the reader of former albums. Its frames are read as they are needed, and it waits
// until they are, so that memory does not grow with the file.
class ReaderProcess
{
public:
    struct Frame
    {
        OldAlbumStream::Frame kind;
        QByteArrayView contents; // valid until the next frame is asked for
    };

    // The reader in the program's folder.
    static QString ReaderPath();

    // Throws DatabaseError CannotOpen when the reader is missing or cannot be started.
    explicit ReaderProcess(const QStringList& arguments, const QString& program = ReaderPath());
    ~ReaderProcess();

    // The next frame. None at the end of the stream, when the frame is not complete after patience
    // milliseconds (the reader is killed then, and patience is 0), or when its output is invalid.
    // Subtracts from patience the time waited for a reader that stopped early.
    std::optional<Frame> Next(int& patience);

    // Number of bytes received.
    qint64 GetVolume() const { return volume_; }

    // Writes to the reader, waits for its end and returns its exit code, -1 when it crashed or
    // hung.
    int Finish(const QByteArray& input = {});

private:
    bool FetchMore(int& patience, const QElapsedTimer& waiting);

    QProcess process_;
    QByteArray buffer_;
    qsizetype used_ = 0; // bytes of the buffer in frames already given out
    qint64 volume_ = 0;
};

// Takes numbers, texts and values off the front of a frame. Missing ones read as 0 or empty.
class FrameContents
{
public:
    explicit FrameContents(QByteArrayView contents) : left_(contents) {}

    quint32 Number();
    QByteArrayView Bytes(quint32 size);
    QString Text() { return QString::fromUtf8(Bytes(Number())); }
    bool IsAtEnd() const { return left_.isEmpty(); }

private:
    QByteArrayView left_;
};
