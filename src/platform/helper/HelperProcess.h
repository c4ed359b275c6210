// SPDX-License-Identifier: MIT
#pragma once

#include "platform/helper/FrameStream.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <optional>

// One run of a helper. Its frames are read as they are needed, and it waits until they are, so that
// memory does not grow with the file.
class HelperProcess
{
public:
    struct Frame
    {
        unsigned char kind;
        QByteArrayView contents; // valid until the next frame is asked for
    };

    // program: a file in the program's folder, or a path. Throws DatabaseError CannotOpen when it
    // is missing or cannot be started.
    HelperProcess(const QString& program, const QStringList& arguments);
    ~HelperProcess();
    Q_DISABLE_COPY_MOVE(HelperProcess)

    // The next frame. None at the end of the stream, when the frame is not complete after patience
    // milliseconds (the helper is killed then, and patience is 0), or when its output is invalid.
    // Subtracts from patience the time waited for a helper that stopped early.
    std::optional<Frame> Next(int& patience);

    // The next frame if it is complete within milliseconds. If it is not, the helper goes on unless
    // HasEnded.
    std::optional<Frame> Poll(int milliseconds);
    // Whether no frame comes any more; all that were complete have been returned.
    bool HasEnded() const;

    // Writes to the helper without waiting.
    void Send(const QByteArray& input) { process_.write(input); }

    // Number of bytes received.
    qint64 GetVolume() const { return volume_; }

    // Writes to the helper, waits for its end and returns its exit code, -1 when it crashed or
    // hung.
    int Finish(const QByteArray& input = {});

private:
    std::optional<Frame> TakeFrame();
    void Receive();
    bool FetchMore(int& patience, const QElapsedTimer& waiting);

    QProcess process_;
    QByteArray buffer_;
    qsizetype used_ = 0; // bytes of the buffer in frames already given out
    qint64 volume_ = 0;
    bool isInvalid_ = false;
};

// Takes numbers, texts and values off the front of a frame. Missing ones read as 0 or empty.
class FrameContents
{
public:
    explicit FrameContents(QByteArrayView contents) : left_(contents) {}

    quint32 Number();
    QByteArrayView Bytes(quint32 size);
    QByteArrayView Bytes() { return Bytes(Number()); }
    QString Text() { return QString::fromUtf8(Bytes()); }
    bool IsAtEnd() const { return left_.isEmpty(); }

private:
    QByteArrayView left_;
};

// Builds what is written to a helper, as FrameContents and the child's RequestReader take it apart.
class RequestBytes
{
public:
    RequestBytes& Number(quint32 number);
    RequestBytes& Bytes(QByteArrayView bytes);
    RequestBytes& Text(const QString& text) { return Bytes(text.toUtf8()); }
    const QByteArray& Get() const { return bytes_; }

private:
    QByteArray bytes_;
};
