// SPDX-License-Identifier: MIT
#include "platform/files/FileReplacement.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr char folderPattern[] = ".lumenark-";
constexpr char lockName[] = "lumenark-work"; // tells our folders from others with such a name
constexpr char fileName[] = "new";           // beginning of every file made in the folder
constexpr char asideName[] = "old";          // beginning of every file set aside in it
constexpr std::array journalEndings{"-journal", "-wal", "-shm"};
constexpr int maxFolders = 10; // attempts; another program may remove a folder
constexpr int maxLinks = 40;   // in a row; systems follow as many

fs::path ToPath(const QString& path)
{
    return fs::path(path.toStdU16String());
}

QString Inside(const QString& folder, const char* name)
{
    return folder + u'/' + QLatin1String(name);
}

[[noreturn]] void Fail(int error)
{
    throw std::system_error(error, std::generic_category());
}

// The file that the place leads to, which need not exist: dangling links are followed too.
QString ResolvePlace(const QString& place)
{
    fs::path path = fs::absolute(ToPath(place));
    for (int links = 0; fs::is_symlink(fs::symlink_status(path)); ++links) {
        if (links == maxLinks)
            Fail(ELOOP);
        path = path.parent_path() / fs::read_symlink(path);
    }
    path = fs::canonical(path.parent_path()) / path.filename();
    if (fs::exists(path) && !fs::is_regular_file(path))
        Fail(fs::is_directory(path) ? EISDIR : EINVAL);
    return QString::fromStdU16String(path.u16string());
}

// A file that its owner protected must stay, even for a user who may replace everything.
void RequireReplaceable(const QFileInfo& file)
{
    constexpr auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (file.exists() && !(file.isWritable() && (file.permissions() & anyWrite)))
        Fail(EACCES);
}

// Makes a folder that only the user can open.
QString MakeFolder(const QString& parent)
{
    QByteArray name = QFile::encodeName(Inside(parent, folderPattern) + QLatin1String("XXXXXX"));
    if (!mkdtemp(name.data()))
        Fail(errno);
    return QFile::decodeName(name);
}

// Null while a running program, here or on another computer, holds the lock.
std::unique_ptr<QLockFile> LockFolder(const QString& folder)
{
    auto lock = std::make_unique<QLockFile>(Inside(folder, lockName));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0))
        return nullptr;
    return lock;
}

// Removes only files made here, so a folder that holds anything else stays.
void RemoveFolder(const QString& folder, std::unique_ptr<QLockFile> lock)
{
    const QDir contents(folder);
    const QStringList ours{QLatin1String(fileName) + u'*', QLatin1String(asideName) + u'*'};
    for (const QString& name :
         contents.entryList(ours, QDir::Files | QDir::Hidden | QDir::System | QDir::CaseSensitive))
        QFile::remove(contents.filePath(name));
    lock.reset(); // removes its own file
    QDir().rmdir(folder);
}

// A program killed between creating its lock and writing its number into it leaves one that only
// its age distinguishes from a lock in use.
void RemoveUnfilledLock(const QString& path)
{
    constexpr qint64 longestFilling = 60; // seconds
    const QFileInfo lock(path);
    if (lock.isFile() && lock.size() == 0 &&
        lock.lastModified().secsTo(QDateTime::currentDateTime()) > longestFilling)
        QFile::remove(path);
}

bool ClearFolders(const QString& parent)
{
    bool isAnyCleared = false;
    const QStringList names =
        QDir(parent).entryList({QLatin1String(folderPattern) + u'*'},
                               QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        const QString folder = parent + u'/' + name;
        RemoveUnfilledLock(Inside(folder, lockName));
        const QFileInfo mark(Inside(folder, lockName));
        if (!mark.isFile() || mark.isSymLink()) {
            // A program killed just after making the folder, or just before removing it, leaves it
            // empty; rmdir removes only an empty one. A program at work in it makes another.
            QDir().rmdir(folder);
            continue;
        }
        if (auto lock = LockFolder(folder)) {
            RemoveFolder(folder, std::move(lock));
            isAnyCleared = true;
        }
    }
    return isAnyCleared;
}

// The engine would play a replaced file's journals back into the new one.
void MoveJournals(const QString& from, const QString& to, std::error_code& error)
{
    for (const char* ending : journalEndings) {
        const fs::path journal = ToPath(from + QLatin1String(ending));
        std::error_code unknown;
        if (fs::is_regular_file(fs::symlink_status(journal, unknown)) && !error)
            fs::rename(journal, ToPath(to + QLatin1String(ending)), error);
    }
}

void Flush(const QString& path, int flags)
{
    const int file = open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    const bool done = file >= 0 && fsync(file) == 0;
    const int error = errno;
    if (file >= 0)
        close(file);
    if (!done)
        Fail(error);
}

} // namespace

FileReplacement::FileReplacement(const QString& place) : target_(ResolvePlace(place))
{
    const QString parent = QFileInfo(target_).absolutePath();
    RequireReplaceable(QFileInfo(target_));
    ClearFolders(parent);
    // Until it is locked, another program may take the folder for a leftover.
    for (int trial = 0; !lock_ && trial < maxFolders && !QFileInfo::exists(folder_); ++trial) {
        folder_ = MakeFolder(parent);
        lock_ = LockFolder(folder_);
    }
    path_ = Inside(folder_, fileName);
    try {
        if (!lock_)
            Fail(EIO);
        MakeFile();
    } catch (...) {
        RemoveFolder(folder_, std::move(lock_));
        throw;
    }
}

FileReplacement::~FileReplacement()
{
    RemoveFolder(folder_, std::move(lock_));
}

QString FileReplacement::GetHelperPath() const
{
    return path_ + QLatin1String("-helper");
}

// Sets the permissions before the first byte is written.
void FileReplacement::MakeFile()
{
    struct stat replaced = {};
    const bool replaces = stat(QFile::encodeName(target_).constData(), &replaced) == 0;
    const int file =
        open(QFile::encodeName(path_).constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC,
             replaces ? S_IRUSR | S_IWUSR : 0666);
    if (file < 0)
        Fail(errno);
    mode_t mode = replaced.st_mode & 0777;
    // If the file cannot have the old file's group, its own group gets no rights.
    if (replaces && fchown(file, uid_t(-1), replaced.st_gid) != 0)
        mode &= ~mode_t(S_IRWXG);
    const bool done = !replaces || fchmod(file, mode) == 0;
    const int error = errno;
    close(file);
    if (!done)
        Fail(error);
}

void FileReplacement::SetJournalsAside()
{
    std::error_code error;
    MoveJournals(target_, Inside(folder_, asideName), error);
    if (error) {
        PutJournalsBack();
        throw std::system_error(error);
    }
}

void FileReplacement::PutJournalsBack()
{
    std::error_code error;
    MoveJournals(Inside(folder_, asideName), target_, error);
}

void FileReplacement::WriteThrough() const
{
    Flush(path_, O_RDWR);
}

void FileReplacement::Commit(Taken taken)
{
    WriteThrough();
    if (taken == Taken::Refuse && QFileInfo::exists(target_))
        Fail(EEXIST);
    SetJournalsAside();
    std::error_code error;
    if (taken == Taken::Replace)
        fs::rename(ToPath(path_), ToPath(target_), error);
    else if (!QFile::rename(path_, target_)) // fails where a file now exists
        error = std::make_error_code(std::errc::file_exists);
    if (error) {
        PutJournalsBack();
        throw std::system_error(error);
    }
    // The file is in its place, even if the file system cannot sync a folder.
    try {
        Flush(QFileInfo(target_).absolutePath(), O_RDONLY);
    } catch (const std::system_error&) {
    }
}

bool FileReplacement::ClearLeftovers(const QString& place)
{
    return ClearFolders(QFileInfo(ResolvePlace(place)).absolutePath());
}
