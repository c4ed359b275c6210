// SPDX-License-Identifier: MIT
#include "platform/helper/HelperProcess.h"

#include "platform/data/DatabaseError.h"
#include "platform/shell/ProgramFolder.h"

#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

constexpr int finishMilliseconds = 5000; // for a helper with nothing left to do
// Minimum when all patience is used up, so that tables after one that hangs have a chance.
constexpr int leastPatience = 250;

QString PathOfHelper(const QString& program)
{
    return QFileInfo(program).isAbsolute() ? program : ProgramFile(program);
}

} // namespace

HelperProcess::HelperProcess(const QString& program, const QStringList& arguments)
{
    const QString path = PathOfHelper(program);
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(path, arguments);
    if (!process_.waitForStarted())
        throw DatabaseError(DatabaseError::CannotOpen,
                            DatabaseError::tr("A part of the program cannot be started: %1: %2")
                                .arg(path, process_.errorString()));
}

HelperProcess::~HelperProcess()
{
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.kill();
    process_.waitForFinished(finishMilliseconds);
}

void HelperProcess::Receive()
{
    if (used_ > 0) {
        buffer_.remove(0, used_);
        used_ = 0;
    }
    const QByteArray more = process_.readAllStandardOutput();
    volume_ += more.size();
    buffer_ += more;
}

// The time counts from where the frame was waited for first: a byte now and then is no progress.
bool HelperProcess::FetchMore(int& patience, const QElapsedTimer& waiting)
{
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
    const qint64 earlier = volume_;
    Receive();
    return volume_ > earlier;
}

std::optional<HelperProcess::Frame> HelperProcess::TakeFrame()
{
    const qsizetype have = buffer_.size() - used_;
    if (isInvalid_ || have < qsizetype(FrameStream::frameHead))
        return std::nullopt;
    const char* head = buffer_.constData() + used_;
    const auto size = qFromLittleEndian<quint32>(head + 1);
    if (size > FrameStream::largestFrame) {
        process_.kill(); // the rest of its output is not wanted
        isInvalid_ = true;
        return std::nullopt;
    }
    if (have < qsizetype(FrameStream::frameHead + size))
        return std::nullopt;
    used_ += qsizetype(FrameStream::frameHead + size);
    return Frame{static_cast<unsigned char>(*head),
                 {head + FrameStream::frameHead, qsizetype(size)}};
}

std::optional<HelperProcess::Frame> HelperProcess::Next(int& patience)
{
    QElapsedTimer waiting;
    waiting.start();
    while (true) {
        if (const auto frame = TakeFrame())
            return frame;
        if (isInvalid_ || !FetchMore(patience, waiting))
            return std::nullopt;
    }
}

std::optional<HelperProcess::Frame> HelperProcess::Poll(int milliseconds)
{
    auto frame = TakeFrame();
    if (frame || isInvalid_)
        return frame;
    if (process_.bytesAvailable() == 0 && process_.state() != QProcess::NotRunning)
        process_.waitForReadyRead(milliseconds);
    Receive();
    return TakeFrame();
}

bool HelperProcess::HasEnded() const
{
    return isInvalid_ ||
           (process_.state() == QProcess::NotRunning && process_.bytesAvailable() == 0);
}

int HelperProcess::Finish(const QByteArray& input)
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

RequestBytes& RequestBytes::Number(quint32 number)
{
    std::array<char, 4> raw{};
    qToLittleEndian(number, raw.data());
    bytes_.append(raw.data(), raw.size());
    return *this;
}

RequestBytes& RequestBytes::Bytes(QByteArrayView bytes)
{
    Number(quint32(bytes.size()));
    bytes_.append(bytes);
    return *this;
}
