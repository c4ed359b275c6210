// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseCopy.h"

#include "platform/data/Database.h"
#include "platform/data/DatabaseError.h"

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <optional>

#include <unistd.h>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

namespace {

constexpr qint64 blockSize = 1 << 20;
constexpr qint64 flushEvery = 32 * blockSize;

// The bytes of an open database's file.
class EngineFile
{
public:
    explicit EngineFile(sqlite3* engine)
    {
        sqlite3_file_control(engine, "main", SQLITE_FCNTL_FILE_POINTER, &file_);
        sqlite3_int64 size = -1;
        if (file_ && file_->pMethods && file_->pMethods->xFileSize(file_, &size) == SQLITE_OK)
            size_ = size;
    }

    qint64 GetSize() const { return size_; } // negative when unknown

    bool Read(QByteArray& block, qint64 from) const
    {
        return file_->pMethods->xRead(file_, block.data(), int(block.size()), from) == SQLITE_OK;
    }

private:
    sqlite3_file* file_ = nullptr;
    qint64 size_ = -1;
};

// Calls take for each block of the file; false when reading or take fails.
template<typename Take>
bool ForEachBlock(const EngineFile& source, const Take& take)
{
    if (source.GetSize() < 0)
        return false;
    for (qint64 from = 0; from < source.GetSize(); from += blockSize) {
        QByteArray block(qsizetype(std::min(blockSize, source.GetSize() - from)),
                         Qt::Uninitialized);
        if (!source.Read(block, from) || !take(block))
            return false;
    }
    return true;
}

// A disk that takes only the beginning of a block is full, of which the file says nothing.
bool WriteAll(QFile& copy, const QByteArray& block)
{
    const qint64 written = copy.write(block);
    if (written >= 0 && written < block.size())
        throw DatabaseError(
            DatabaseError::DiskError,
            DatabaseError::tr("The album cannot be copied: %1").arg(qt_error_string(ENOSPC)));
    return written == block.size();
}

// Else the whole file would be written to disk at the end, where nothing can tell of progress. A
// flush that fails is tried again there.
bool FlushAtTimes(QFile& copy)
{
    if (copy.pos() % flushEvery == 0 && copy.flush())
        fsync(copy.handle());
    return true;
}

#ifdef Q_OS_LINUX
// The disk writes each stretch while the next one is copied, so that progress tells the truth about
// slow disks, at no cost on quick ones.
void WriteOut(int file, off_t end)
{
    constexpr unsigned whole =
        SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
    const off_t begin = std::max<off_t>(0, end - flushEvery);
    sync_file_range(file, begin, end - begin, SYNC_FILE_RANGE_WRITE);
    if (begin >= flushEvery)
        sync_file_range(file, begin - flushEvery, flushEvery, whole);
}
#endif

// From one descriptor to another, without a way through this program's memory. None where the
// system or its file systems cannot, which the first block tells.
std::optional<bool> CopyInTheSystem(const Database& database, QFile& copy, qint64 size,
                                    const std::function<bool()>& goOn)
{
#ifdef Q_OS_LINUX
    const int source = database.GetReadHandle();
    if (source < 0)
        return {};
    if (ioctl(copy.handle(), FICLONE, source) == 0)
        return true;
    off_t from = 0;
    while (from < size && goOn()) {
        const auto wanted = std::size_t(std::min<qint64>(flushEvery, size - from));
        const ssize_t done = copy_file_range(source, &from, copy.handle(), nullptr, wanted, 0);
        if (done <= 0 && from == 0)
            return {};
        if (done <= 0)
            throw DatabaseError(
                DatabaseError::DiskError,
                DatabaseError::tr("The album cannot be copied: %1").arg(qt_error_string(errno)));
        copy.seek(from);
        WriteOut(copy.handle(), from);
    }
    return from == size;
#else
    Q_UNUSED(database)
    Q_UNUSED(copy)
    Q_UNUSED(size)
    Q_UNUSED(goOn)
    return {};
#endif
}

QString WhyNotCopied(const QFile& copy, bool isWritten)
{
    if (copy.error() != QFile::NoError)
        return copy.errorString();
    return isWritten ? DatabaseError::tr("what was written reads differently.")
                     : DatabaseError::tr("the album's own file cannot be read.");
}

} // namespace

bool CopyDatabaseFile(const Database& database, const QString& target, const CopyProgress& progress)
{
    bool isStopped = false;
    QFile copy(target);
    const EngineFile source(database.GetEngine());
    const auto goOn = [&](int percentBefore) {
        isStopped = !progress(percentBefore + int(50 * copy.pos() / source.GetSize()));
        return !isStopped;
    };
    const auto write = [&](const QByteArray& block) {
        return goOn(0) && WriteAll(copy, block) && FlushAtTimes(copy);
    };
    // Damage by a full disk or an unplugged drive is found only by reading the copy back.
    const auto isEqual = [&](const QByteArray& block) {
        return goOn(50) && copy.read(block.size()) == block;
    };
    const bool isOpen = copy.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) &&
                        copy.setPermissions(QFile::permissions(database.GetPath()));
    const bool isWritten = isOpen && ForEachBlock(source, write) && copy.flush();
    const bool isCopied = isWritten && copy.seek(0) && ForEachBlock(source, isEqual);
    if (!isCopied && !isStopped) {
        throw DatabaseError(
            DatabaseError::DiskError,
            DatabaseError::tr("The album cannot be copied: %1").arg(WhyNotCopied(copy, isWritten)));
    }
    return isCopied;
}

bool CloneDatabaseFile(const Database& database, const QString& target,
                       const CopyProgress& progress)
{
    bool isStopped = false;
    QFile copy(target);
    const EngineFile source(database.GetEngine());
    const auto goOn = [&] {
        isStopped = !progress(int(100 * copy.pos() / std::max<qint64>(1, source.GetSize())));
        return !isStopped;
    };
    const auto write = [&](const QByteArray& block) {
        return goOn() && WriteAll(copy, block) && FlushAtTimes(copy);
    };
    const bool isOpen =
        source.GetSize() >= 0 && copy.open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
    copy.setPermissions(QFile::ReadOwner | QFile::WriteOwner); // where the disk knows of them
    bool isCopied = false;
    if (isOpen) {
        const auto done = CopyInTheSystem(database, copy, source.GetSize(), goOn);
        isCopied = done ? *done : ForEachBlock(source, write) && copy.flush();
    }
    if (!isCopied && !isStopped) {
        throw DatabaseError(
            DatabaseError::DiskError,
            DatabaseError::tr("The album cannot be copied: %1").arg(WhyNotCopied(copy, !isOpen)));
    }
    return isCopied;
}
