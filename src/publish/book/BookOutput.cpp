// SPDX-License-Identifier: MIT
#include "publish/book/BookOutput.h"

#include "publish/PublishReport.h"

#include <algorithm>

#include <fcntl.h>

namespace {

constexpr qint64 smallPiece = 16 * 1024;
constexpr qint64 outputPiece = 256 * 1024;
constexpr qint64 diskPiece = 2 << 20; // a slow disk writes it in some hundredths of a second

} // namespace

BookOutput::BookOutput(const QString& path, BookProgress& progress)
    : file_(path), progress_(progress)
{
    waiting_.reserve(outputPiece);
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        Fail();
}

void BookOutput::Write(QByteArrayView bytes)
{
    const bool isSmall = bytes.size() < smallPiece;
    if (!isSmall || waiting_.size() + bytes.size() > outputPiece)
        WriteWaiting();
    if (isSmall)
        waiting_.append(bytes);
    else
        WriteOut(bytes);
}

void BookOutput::Replace(qint64 place, QByteArrayView bytes)
{
    if (place >= written_) {
        waiting_.replace(place - written_, bytes.size(), bytes);
        return;
    }
    WriteWaiting();
    if (!file_.seek(place) || file_.write(bytes.data(), bytes.size()) != bytes.size() ||
        !file_.seek(written_))
        Fail();
}

void BookOutput::CutTo(qint64 place)
{
    WriteWaiting();
    if (!file_.resize(place) || !file_.seek(place))
        Fail();
    written_ = place;
    begun_ = std::min(begun_, place);
}

void BookOutput::Close()
{
    WriteWaiting();
    file_.close();
    if (file_.error() != QFileDevice::NoError)
        Fail();
}

void BookOutput::WriteWaiting()
{
    WriteOut(waiting_);
    waiting_.resize(0);
}

void BookOutput::WriteOut(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        progress_.Check();
        const qint64 written = file_.write(bytes.data(), std::min(outputPiece, bytes.size()));
        if (written <= 0)
            Fail();
        bytes = bytes.sliced(written);
        written_ += written;
        if (written_ - begun_ >= diskPiece)
            KeepWriting();
    }
}

// At most two pieces wait for the disk: the one before is waited for, this one begun.
void BookOutput::KeepWriting()
{
#ifdef SYNC_FILE_RANGE_WRITE
    const qint64 before = std::max<qint64>(begun_ - diskPiece, 0);
    sync_file_range(file_.handle(), before, begun_ - before,
                    SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE |
                        SYNC_FILE_RANGE_WAIT_AFTER);
    // Nobody reads it soon, and a file of which little is in memory is removed at once after a
    // stop.
    posix_fadvise(file_.handle(), before, begun_ - before, POSIX_FADV_DONTNEED);
    sync_file_range(file_.handle(), begun_, written_ - begun_, SYNC_FILE_RANGE_WRITE);
#endif
    begun_ = written_;
}

void BookOutput::Fail() const
{
    throw PublishError(file_.errorString());
}
