// SPDX-License-Identifier: MIT
#include "core/InstalledSample.h"

#include "platform/data/Database.h"
#include "platform/data/Statement.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/FolderListing.h"
#include "platform/shell/ProgramFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QLockFile>
#include <QStorageInfo>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

struct SampleTexts
{
    Q_DECLARE_TR_FUNCTIONS(InstalledSample)
};

struct Stopped
{
};

// Another program is making the copy.
struct Busy
{
};

fs::path ToPath(const QString& path)
{
    return fs::path(path.toStdU16String());
}

// The paths of all files in a folder and the folders in it, relative to it.
QStringList FilesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator found(folder, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files += QDir(folder).relativeFilePath(found.next());
    files.sort();
    return files;
}

// Makes one copy in a hidden folder beside its place, which gets its name when it is complete.
class Copying
{
public:
    Copying(const QString& sample, const QString& target)
        : source_(QFileInfo(sample).absolutePath()),
          album_(QFileInfo(sample).fileName()),
          target_(target),
          unfinished_(QFileInfo(target).absolutePath() + QStringLiteral("/.lumenark_sample")),
          lock_(unfinished_ + QStringLiteral(".lock")),
          files_(FilesBelow(source_))
    {
        lock_.setStaleLockTime(0); // a long copying is not a dead one
    }

    ~Copying()
    {
        if (lock_.isLocked())
            Clear();
    }
    Copying(const Copying&) = delete;
    Copying& operator=(const Copying&) = delete;

    void Run(const std::function<bool()>& isStopped)
    {
        Lock();
        Clear();
        RequireRoom();
        for (const QString& file : files_) {
            if (isStopped())
                throw Stopped();
            CopyFile(file);
        }
        NamePictures();
        fs::rename(ToPath(unfinished_), ToPath(target_));
    }

private:
    void Lock()
    {
        if (lock_.tryLock(0))
            return;
        if (lock_.error() == QLockFile::LockFailedError)
            throw Busy();
        throw std::system_error(lock_.error() == QLockFile::PermissionError ? EACCES : EIO,
                                std::generic_category());
    }

    // Removes only what a copy consists of: whatever else may be in the folder stays.
    void Clear()
    {
        const QDir folder(unfinished_);
        for (const QString& file : files_) {
            QFile::remove(folder.filePath(file));
            folder.rmdir(QFileInfo(file).path());
        }
        for (const char* ending : {"-journal", "-wal", "-shm"})
            QFile::remove(folder.filePath(album_) + QLatin1String(ending));
        QDir().rmdir(unfinished_);
    }

    // Before anything is written, because a full disk disturbs every other program too.
    void RequireRoom() const
    {
        constexpr qint64 reserve = 1 << 20; // bytes, for folders and the album's journal
        qint64 needed = reserve;
        for (const QString& file : files_)
            needed += QFileInfo(QDir(source_).filePath(file)).size();
        const QStorageInfo disk(QFileInfo(unfinished_).absolutePath());
        if (disk.isValid() && disk.bytesAvailable() < needed)
            throw std::system_error(ENOSPC, std::generic_category());
    }

    void CopyFile(const QString& file) const
    {
        const fs::path copy = ToPath(QDir(unfinished_).filePath(file));
        fs::create_directories(copy.parent_path());
        fs::copy_file(ToPath(QDir(source_).filePath(file)), copy);
        // The installed one may be protected.
        fs::permissions(copy, fs::perms::owner_write, fs::perm_options::add);
    }

    void NamePictures() const
    {
        const auto album = Database::Open(QDir(unfinished_).filePath(album_));
        WriteBatch batch(album, WriteBatch::Commits::AtItsEnd);
        for (const char* table : {"Image", "LinkedImages"}) {
            Statement statement(album->GetEngine(),
                                QByteArray("UPDATE \"") + table + "\" SET \"File\"=?1||\"File\"");
            statement.Bind(1, PathIn(QDir::toNativeSeparators(target_), QString()));
            statement.Run();
        }
        batch.Finish();
    }

    QString source_;
    QString album_; // the file's name
    QString target_;
    QString unfinished_;
    QLockFile lock_;
    QStringList files_;
};

QString TargetIn(const QString& folder, int number)
{
    const QString name = number == 1 ? SampleTexts::tr("Lumenark Sample Story")
                                     : SampleTexts::tr("Lumenark Sample Story %1").arg(number);
    return QDir(folder).absoluteFilePath(name);
}

QString ErrorFor(const QString& folder, const QString& reason)
{
    return SampleTexts::tr("The sample story cannot be copied to '%1': %2")
        .arg(QDir::toNativeSeparators(folder), reason);
}

} // namespace

namespace GeneralModule {

QString InstalledSample()
{
    const QDir folder(ProgramFile(QStringLiteral("sample")));
    const QStringList albums = folder.entryList({QStringLiteral("*.alb")}, QDir::Files, QDir::Name);
    return albums.isEmpty() ? QString() : folder.absoluteFilePath(albums.first());
}

SampleCopy ProvideSample(const QString& sample, const QString& folder,
                         const std::function<bool()>& isStopped)
{
    for (int number = 1;; ++number) {
        const QString target = TargetIn(folder, number);
        const QString album =
            QDir::toNativeSeparators(QDir(target).filePath(QFileInfo(sample).fileName()));
        if (QFileInfo(album).isFile())
            return {album, {}};
        const QFileInfo taken(target);
        if (taken.exists() || taken.isSymLink())
            continue; // something of the user's own
        try {
            Copying(sample, target).Run(isStopped);
            return {album, {}};
        } catch (const Stopped&) {
            return {};
        } catch (const Busy&) {
            return {{}, SampleTexts::tr("The sample story is being copied in another window.")};
        } catch (const std::system_error& error) {
            return {{}, ErrorFor(folder, QString::fromLocal8Bit(error.code().message().c_str()))};
        } catch (const DatabaseError& error) {
            return {{}, ErrorFor(folder, error.GetDescription())};
        }
    }
}

} // namespace GeneralModule
