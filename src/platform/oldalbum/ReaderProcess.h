// SPDX-License-Identifier: MIT
#pragma once

#include "platform/oldalbum/OldAlbumStream.h"

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <optional>

// One run of the reader of former albums. Its frames are read while it works, never ahead: it waits
// when they are not taken, so that memory does not grow with the file.
class ReaderProcess
{
public:
    struct Frame
    {
        OldAlbumStream::Frame kind;
        QByteArrayView contents; // valid until the next frame is asked for
    };

    // Throws DatabaseError CannotOpen when the reader is not there or cannot be started.
    explicit ReaderProcess(const QStringList& arguments);
    ~ReaderProcess();

    // The next frame; nothing at the end of the stream, when the reader has been silent for
    // patience milliseconds (it is ended then, and patience is 0), or when what it writes makes no
    // sense. Takes the time waited for a reader that broke off from patience.
    std::optional<Frame> Next(int& patience);

    // All bytes that came.
    qint64 GetVolume() const { return volume_; }

    // Writes to the reader, waits for its end and returns its exit code, -1 when it broke off.
    int Finish(const QByteArray& input = {});

private:
    bool FetchMore(int& patience);

    QProcess process_;
    QByteArray buffer_;
    qsizetype used_ = 0; // of the buffer, by frames that were given out
    qint64 volume_ = 0;
};

// Takes numbers, texts and values off the front of a frame. What is not there reads as 0 or empty.
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
