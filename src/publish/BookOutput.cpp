// SPDX-License-Identifier: MIT
#include "publish/BookOutput.h"

#include "publish/PublishReport.h"

#include <algorithm>

#include <fcntl.h>

namespace {

constexpr qint64 outputPiece = 256 * 1024;
constexpr qint64 diskPiece = 8 << 20; // a slow disk writes it in a tenth of a second

} // namespace

BookOutput::BookOutput(const QString& path, BookProgress& progress)
    : Pipeline("book", nullptr), file_(path), progress_(progress)
{
    waiting_.reserve(outputPiece);
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        failure_ = file_.errorString();
        throw PublishError(failure_);
    }
}

void BookOutput::write(const unsigned char* data, std::size_t bytes)
{
    const char* begin = reinterpret_cast<const char*>(data);
    if (waiting_.size() + qint64(bytes) <= outputPiece) {
        waiting_.append(begin, qsizetype(bytes));
        return;
    }
    WriteOut(waiting_.constData(), waiting_.size());
    waiting_.resize(0);
    for (qint64 at = 0; at < qint64(bytes); at += outputPiece)
        WriteOut(begin + at, std::min(outputPiece, qint64(bytes) - at));
}

void BookOutput::Close()
{
    WriteOut(waiting_.constData(), waiting_.size());
    waiting_.resize(0);
    file_.close();
}

void BookOutput::WriteOut(const char* data, qint64 bytes)
{
    progress_.Check();
    for (qint64 at = 0; at < bytes;) {
        const qint64 written = file_.write(data + at, bytes - at);
        if (written <= 0) {
            failure_ = file_.errorString();
            throw PublishError(failure_);
        }
        at += written;
    }
    bytes_ += bytes;
    if (bytes_ - begun_ >= diskPiece)
        KeepWriting();
}

// At most two pieces wait for the disk: the one before is waited for, this one begun.
void BookOutput::KeepWriting()
{
#ifdef SYNC_FILE_RANGE_WRITE
    const qint64 before = std::max<qint64>(begun_ - diskPiece, 0);
    sync_file_range(file_.handle(), before, begun_ - before,
                    SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE |
                        SYNC_FILE_RANGE_WAIT_AFTER);
    sync_file_range(file_.handle(), begun_, bytes_ - begun_, SYNC_FILE_RANGE_WRITE);
#endif
    begun_ = bytes_;
}
