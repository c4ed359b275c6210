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

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <QTemporaryDir>
#endif

namespace fs = std::filesystem;

namespace {

constexpr char folderPattern[] = ".lumenark-";
constexpr char lockName[] = "lumenark-work"; // tells our folders from others of such a name
constexpr char fileName[] = "new";           // all that is made in the folder begins so
constexpr char asideName[] = "old";          // and all that is set aside in it so
constexpr std::array journalEndings{"-journal", "-wal", "-shm"};
constexpr int maxFolders = 10; // that others may take away
constexpr int maxLinks = 40;   // in a row; as many as systems follow

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

// The file that is meant, which need not be there: links lead to it also where they dangle.
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

// A file that its owner protected is meant to stay, also where the user may replace everything.
void RequireReplaceable(const QFileInfo& file)
{
    constexpr auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (file.exists() && !(file.isWritable() && (file.permissions() & anyWrite)))
        Fail(EACCES);
}

// Only the user may look into it.
QString MakeFolder(const QString& parent)
{
    const QString pattern = Inside(parent, folderPattern) + QLatin1String("XXXXXX");
#ifdef Q_OS_UNIX
    QByteArray name = QFile::encodeName(pattern);
    if (!mkdtemp(name.data()))
        Fail(errno);
    return QFile::decodeName(name);
#else
    QTemporaryDir folder(pattern);
    if (!folder.isValid())
        Fail(EACCES);
    folder.setAutoRemove(false);
    return folder.path();
#endif
}

// A program that is still running, here or on another computer, holds its lock.
std::unique_ptr<QLockFile> LockFolder(const QString& folder)
{
    auto lock = std::make_unique<QLockFile>(Inside(folder, lockName));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0))
        return nullptr;
    return lock;
}

// Only what is made here is removed, so a folder that holds anything else stays.
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

// A program that is killed between making its lock and writing its number into it leaves one that
// nobody can tell from a lock in use, but for its age.
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
            // One that a program was ended in when it had just made it, or nearly removed it, is
            // empty; removing goes no further. Who works there makes another.
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

// Journals of a file that is replaced would be played back into the new one.
void MoveJournals(const QString& from, const QString& to, std::error_code& error)
{
    for (const char* ending : journalEndings) {
        const fs::path journal = ToPath(from + QLatin1String(ending));
        std::error_code unknown;
        if (fs::is_regular_file(fs::symlink_status(journal, unknown)) && !error)
            fs::rename(journal, ToPath(to + QLatin1String(ending)), error);
    }
}

#ifdef Q_OS_UNIX
void WriteThrough(const QString& path, int flags)
{
    const int file = open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    const bool done = file >= 0 && fsync(file) == 0;
    const int error = errno;
    if (file >= 0)
        close(file);
    if (!done)
        Fail(error);
}
#endif

} // namespace

FileReplacement::FileReplacement(const QString& place) : target_(ResolvePlace(place))
{
    const QString parent = QFileInfo(target_).absolutePath();
    RequireReplaceable(QFileInfo(target_));
    ClearFolders(parent);
    // Until it holds the lock, another program may take the folder for one that was left.
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

// The permissions are there before the first byte is.
void FileReplacement::MakeFile()
{
#ifdef Q_OS_UNIX
    struct stat replaced = {};
    const bool replaces = stat(QFile::encodeName(target_).constData(), &replaced) == 0;
    const int file =
        open(QFile::encodeName(path_).constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC,
             replaces ? S_IRUSR | S_IWUSR : 0666);
    if (file < 0)
        Fail(errno);
    mode_t mode = replaced.st_mode & 0777;
    // Another group than the old file's does not get its rights.
    if (replaces && fchown(file, uid_t(-1), replaced.st_gid) != 0)
        mode &= ~mode_t(S_IRWXG);
    const bool done = !replaces || fchmod(file, mode) == 0;
    const int error = errno;
    close(file);
    if (!done)
        Fail(error);
#else
    QFile file(path_);
    if (!file.open(QIODevice::WriteOnly))
        Fail(EIO);
#endif
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

void FileReplacement::Commit(Taken taken)
{
#ifdef Q_OS_UNIX
    WriteThrough(path_, O_RDWR);
#endif
    if (taken == Taken::Refuse && QFileInfo::exists(target_))
        Fail(EEXIST);
    SetJournalsAside();
    std::error_code error;
    if (taken == Taken::Replace)
        fs::rename(ToPath(path_), ToPath(target_), error);
    else if (!QFile::rename(path_, target_)) // refuses where a file has come meanwhile
        error = std::make_error_code(std::errc::file_exists);
    if (error) {
        PutJournalsBack();
        throw std::system_error(error);
    }
#ifdef Q_OS_UNIX
    // The file has its name by now, whatever a file system that knows no such thing says.
    try {
        WriteThrough(QFileInfo(target_).absolutePath(), O_RDONLY);
    } catch (const std::system_error&) {
    }
#endif
}

bool FileReplacement::ClearLeftovers(const QString& place)
{
    return ClearFolders(QFileInfo(ResolvePlace(place)).absolutePath());
}
