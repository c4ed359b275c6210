// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseCopy.h"

#include "platform/data/Database.h"
#include "platform/data/DatabaseError.h"

#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

constexpr qint64 blockSize = 1 << 20;

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

QString WhyNotCopied(const QFile& copy, bool isWritten)
{
    if (copy.error() != QFile::NoError)
        return copy.errorString();
    return isWritten ? DatabaseError::tr("what was written reads differently.")
                     : DatabaseError::tr("the album's own file cannot be read.");
}

} // namespace

void CopyDatabaseFile(const Database& database, const QString& target)
{
    QFile copy(target);
    const EngineFile source(database.GetEngine());
    const auto write = [&copy](const QByteArray& block) {
        return copy.write(block) == block.size();
    };
    // Damage by a full disk or an unplugged drive is found only by reading the copy back.
    const auto isEqual = [&copy](const QByteArray& block) {
        return copy.read(block.size()) == block;
    };
    const bool isOpen = copy.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) &&
                        copy.setPermissions(QFile::permissions(database.GetPath()));
    const bool isWritten = isOpen && ForEachBlock(source, write) && copy.flush();
    if (!isWritten || !copy.seek(0) || !ForEachBlock(source, isEqual)) {
        throw DatabaseError(
            DatabaseError::DiskError,
            DatabaseError::tr("The album cannot be copied: %1").arg(WhyNotCopied(copy, isWritten)));
    }
}
