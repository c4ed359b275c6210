// SPDX-License-Identifier: MIT
#include "publish/WriteBehind.h"

#ifdef Q_OS_LINUX

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr qint64 mostBehind = 16 << 20; // bytes
constexpr std::size_t mostFiles = 64;   // that are held open
constexpr unsigned untilWritten =
    SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;

} // namespace

WriteBehind::~WriteBehind()
{
    for (const Waiting& file : waiting_)
        close(file.handle);
}

void WriteBehind::Continue(const QFile& file)
{
    const qint64 written = file.pos();
    sync_file_range(file.handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
    if (written > mostBehind)
        sync_file_range(file.handle(), 0, written - mostBehind, untilWritten);
}

void WriteBehind::Take(QFile& file)
{
    sync_file_range(file.handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
    const int handle = fcntl(file.handle(), F_DUPFD_CLOEXEC, 0);
    if (handle < 0)
        return;
    waiting_.push_back({handle, file.size()});
    bytes_ += file.size();
    while (bytes_ > mostBehind || waiting_.size() > mostFiles)
        WaitForFirst();
}

void WriteBehind::WaitForFirst()
{
    const Waiting file = waiting_.front();
    sync_file_range(file.handle, 0, 0, untilWritten);
    close(file.handle);
    bytes_ -= file.bytes;
    waiting_.pop_front();
}

#else

WriteBehind::~WriteBehind() = default;
void WriteBehind::Continue(const QFile&) {}
void WriteBehind::Take(QFile&) {}

#endif
