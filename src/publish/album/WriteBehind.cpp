// SPDX-License-Identifier: MIT
#include "publish/album/WriteBehind.h"

#ifdef Q_OS_LINUX

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr qint64 mostBehind = 16 << 20; // bytes
constexpr qint64 smallFile = 256 << 10; // bytes; smaller ones are better written many at a time
constexpr unsigned untilWritten =
    SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;

} // namespace

void WriteBehind::Continue(const QFile& file)
{
    const qint64 written = file.pos();
    if (written >= smallFile)
        sync_file_range(file.handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
    if (written > mostBehind) {
        sync_file_range(file.handle(), 0, written - mostBehind, untilWritten);
        posix_fadvise(file.handle(), 0, written - mostBehind, POSIX_FADV_DONTNEED);
    }
}

void WriteBehind::Take(const QFile& file)
{
    Continue(file);
    waiting_.push_back({file.fileName(), file.size()});
    bytes_ += file.size();
    while (bytes_ > mostBehind)
        WaitForFirst();
}

void WriteBehind::WaitForFirst()
{
    const Waiting file = waiting_.front();
    waiting_.pop_front();
    bytes_ -= file.bytes;
    const int handle = open(QFile::encodeName(file.path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    sync_file_range(handle, 0, 0, untilWritten);
    // Nobody reads it soon, and files that are not in memory are removed at once after a stop.
    posix_fadvise(handle, 0, 0, POSIX_FADV_DONTNEED);
    close(handle);
}

#else

void WriteBehind::Continue(const QFile&) {}
void WriteBehind::Take(const QFile&) {}

#endif
