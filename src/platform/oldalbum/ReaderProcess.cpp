// SPDX-License-Identifier: MIT
#include "platform/oldalbum/ReaderProcess.h"

#include "platform/data/DatabaseError.h"
#include "platform/shell/ProgramFolder.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr int finishMilliseconds = 5000; // for a reader with nothing left to do
// Minimum when all patience is used up, so that tables after one that hangs have a chance.
constexpr int leastPatience = 250;
constexpr quint32 largestFrame = OldAlbumStream::largestRow + 64 * 1024;

} // namespace

QString ReaderProcess::ReaderPath()
{
    return ProgramFile(QStringLiteral("lumenark-import"));
}

ReaderProcess::ReaderProcess(const QStringList& arguments, const QString& program)
{
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(program, arguments);
    if (!process_.waitForStarted())
        throw DatabaseError(
            DatabaseError::CannotOpen,
            DatabaseError::tr("The part of the program that reads former albums cannot "
                              "be started: %1: %2")
                .arg(program, process_.errorString()));
}

ReaderProcess::~ReaderProcess()
{
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.kill();
    process_.waitForFinished(finishMilliseconds);
}

// The time counts from where the frame was waited for first: a byte now and then is no progress.
bool ReaderProcess::FetchMore(int& patience, const QElapsedTimer& waiting)
{
    if (used_ > 0) {
        buffer_.remove(0, used_);
        used_ = 0;
    }
    const int left = std::max(patience, leastPatience) - int(waiting.elapsed());
    if (process_.bytesAvailable() == 0 && !process_.waitForReadyRead(std::max(left, 0))) {
        if (process_.state() != QProcess::NotRunning) {
            process_.kill();
            process_.waitForFinished(finishMilliseconds);
            patience = 0;
            return false;
        }
        if (process_.exitStatus() == QProcess::CrashExit)
            patience = std::max(0, patience - int(waiting.elapsed()));
    }
    const QByteArray more = process_.readAllStandardOutput();
    volume_ += more.size();
    buffer_ += more;
    return !more.isEmpty();
}

std::optional<ReaderProcess::Frame> ReaderProcess::Next(int& patience)
{
    QElapsedTimer waiting;
    waiting.start();
    while (true) {
        const qsizetype have = buffer_.size() - used_;
        if (have >= qsizetype(OldAlbumStream::frameHead)) {
            const char* head = buffer_.constData() + used_;
            const auto size = qFromLittleEndian<quint32>(head + 1);
            if (size > largestFrame) {
                process_.kill(); // the rest of its output is not wanted
                return std::nullopt;
            }
            if (have >= qsizetype(OldAlbumStream::frameHead + size)) {
                used_ += qsizetype(OldAlbumStream::frameHead + size);
                return Frame{OldAlbumStream::Frame(static_cast<unsigned char>(*head)),
                             {head + OldAlbumStream::frameHead, qsizetype(size)}};
            }
        }
        if (!FetchMore(patience, waiting))
            return std::nullopt;
    }
}

int ReaderProcess::Finish(const QByteArray& input)
{
    process_.write(input);
    process_.closeWriteChannel();
    // Whatever it still writes would be kept in memory while it is waited for.
    process_.closeReadChannel(QProcess::StandardOutput);
    // Waiting for a process that has already ended returns failure.
    if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(finishMilliseconds))
        return -1;
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

quint32 FrameContents::Number()
{
    const QByteArrayView bytes = Bytes(4);
    return bytes.size() == 4 ? qFromLittleEndian<quint32>(bytes.data()) : 0;
}

QByteArrayView FrameContents::Bytes(quint32 size)
{
    const qsizetype taken = std::min(qsizetype(size), left_.size());
    const QByteArrayView bytes = left_.first(taken);
    left_ = left_.sliced(taken);
    return bytes;
}
