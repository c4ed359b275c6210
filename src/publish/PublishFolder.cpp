// SPDX-License-Identifier: MIT
#include "publish/PublishFolder.h"

#include "publish/DiskFiles.h"
#include "publish/PublishMoves.h"
#include "publish/PublishReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace {

struct FolderTexts
{
    Q_DECLARE_TR_FUNCTIONS(PublishFolder)
};

constexpr char workName[] = ".lumenark-publish";
const QString newName = QStringLiteral("/new");
const QString oldName = QStringLiteral("/old");
const QString lockFileName = QStringLiteral("/lock");
const QString readyName = QStringLiteral("/ready"); // the new list, once all files are there

// A lock that another computer has left in a folder that travels counts for a day; whether a
// program of this one still runs is known.
constexpr int longestElsewhere = 24 * 60 * 60 * 1000; // milliseconds

QString ReasonOf(const std::error_code& error)
{
    return QString::fromLocal8Bit(error.message().c_str());
}

QString ListPathIn(const QString& folder)
{
    return folder + u'/' + QLatin1String(publishListName);
}

[[noreturn]] void ThrowNotWritten(const QString& folder, const QString& reason)
{
    throw PublishError(FolderTexts::tr("Nothing can be written into the folder \"%1\": %2")
                           .arg(QDir::toNativeSeparators(folder), reason));
}

// What systems put into every folder or volume by themselves is nobody's.
bool HoldsForeignFiles(const QString& folder)
{
    const QSet<QString> ofSystems{
        QStringLiteral("lost+found"), QStringLiteral("system volume information"),
        QStringLiteral("$recycle.bin"), QStringLiteral("thumbs.db"), QStringLiteral("desktop.ini")};
    const QStringList names =
        QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return !std::all_of(names.begin(), names.end(), [&ofSystems](const QString& name) {
        return ofSystems.contains(name.toLower());
    });
}

// None when there is no such file.
std::optional<PublishList> ReadListAt(const QString& path, const QString& folder)
{
    QFile file(path);
    if (!QFileInfo::exists(path))
        return {};
    if (file.open(QIODevice::ReadOnly)) {
        if (std::optional<PublishList> list = ReadPublishList(file.readAll()))
            return list;
    }
    throw PublishError(FolderTexts::tr("The list of what was published into the folder \"%1\" "
                                       "cannot be read. Choose another folder.")
                           .arg(QDir::toNativeSeparators(folder)));
}

} // namespace

PublishFolder::PublishFolder(const QString& folder, const QString& kind)
    : folder_(QDir::cleanPath(QFileInfo(folder).absoluteFilePath())),
      kind_(kind),
      work_(folder_ + u'/' + QLatin1String(workName))
{
    try {
        MakeFolder();
        RequireOurs();
        Lock();
        RequireOurs(); // again, after another run that has just ended
        if (const auto ready = ReadListAt(work_ + readyName, folder_)) {
            mustFinish_ = true;
            PublishMoves moves(folder_, work_ + newName, work_ + oldName);
            PutInPlace(ready->files, moves);
            mustFinish_ = false;
            RequireOurs();
        }
        RemoveAll(work_ + newName);
        RemoveAll(work_ + oldName);
    } catch (const std::system_error& error) {
        ClearWork();
        ThrowNotWritten(folder_, ReasonOf(error.code()));
    } catch (...) {
        ClearWork();
        throw;
    }
}

PublishFolder::~PublishFolder()
{
    ClearWork();
}

void PublishFolder::MakeFolder()
{
    QStringList missing;
    for (QString path = folder_; !QFileInfo::exists(path); path = QFileInfo(path).path())
        missing.prepend(path);
    for (const QString& path : missing) {
        std::error_code error;
        if (std::filesystem::create_directory(path.toStdU16String(), error))
            madeFolders_ += path;
        if (error)
            throw PublishError(FolderTexts::tr("The folder \"%1\" cannot be made: %2")
                                   .arg(QDir::toNativeSeparators(folder_), ReasonOf(error)));
    }
    if (!QFileInfo(folder_).isDir())
        throw PublishError(
            FolderTexts::tr("\"%1\" is not a folder.").arg(QDir::toNativeSeparators(folder_)));
}

void PublishFolder::RequireOurs()
{
    const std::optional<PublishList> list = ReadListAt(ListPathIn(folder_), folder_);
    const std::optional<PublishList> ready = ReadListAt(work_ + readyName, folder_);
    if (QFileInfo(work_).isSymLink() || (!list && !ready && HoldsForeignFiles(folder_)))
        throw PublishError(FolderTexts::tr("The folder \"%1\" holds files of yours. Choose an "
                                           "empty folder, or one that does not exist yet.")
                               .arg(QDir::toNativeSeparators(folder_)));
    if ((list && list->kind != kind_) || (ready && ready->kind != kind_))
        throw PublishError(FolderTexts::tr("Something else was published into the folder \"%1\". "
                                           "Choose another folder.")
                               .arg(QDir::toNativeSeparators(folder_)));
    earlier_.clear();
    for (const PublishedFile& file : list ? list->files : std::vector<PublishedFile>())
        earlier_.insert(FoldedName(file.name), file);
}

void PublishFolder::Lock()
{
    std::error_code error;
    std::filesystem::create_directory(work_.toStdU16String(), error);
    if (error)
        ThrowNotWritten(folder_, ReasonOf(error));
    auto lock = std::make_unique<QLockFile>(work_ + lockFileName);
    lock->setStaleLockTime(longestElsewhere);
    if (lock->tryLock(0)) {
        lock_ = std::move(lock);
        return;
    }
    if (lock->error() == QLockFile::LockFailedError)
        throw PublishError(FolderTexts::tr("The folder \"%1\" is being published into already.")
                               .arg(QDir::toNativeSeparators(folder_)));
    ThrowNotWritten(folder_, ReasonOf(std::make_error_code(std::errc::permission_denied)));
}

bool PublishFolder::Keeps(const QString& name, const QString& madeFrom)
{
    const auto earlier = earlier_.constFind(FoldedName(name));
    if (earlier == earlier_.cend() || earlier->name != name ||
        earlier->from != FingerprintOf(madeFrom) ||
        !IsAsMade(*earlier, LookAtFile(folder_ + u'/' + name)))
        return false;
    const std::lock_guard guard(mutex_);
    kept_.push_back(*earlier);
    return true;
}

QString PublishFolder::PathFor(const QString& name, const QString& madeFrom)
{
    RequireFree(name);
    QString path = work_ + newName + u'/' + name;
    const std::lock_guard guard(mutex_);
    if (!QDir().mkpath(QFileInfo(path).path()))
        ThrowNotWritten(folder_, ReasonOf({errno, std::generic_category()}));
    if (madeNames_.contains(FoldedName(name))) // asked for again, it goes last
        std::erase_if(made_, [&name](const PublishedFile& file) { return file.name == name; });
    madeNames_.insert(FoldedName(name), name);
    made_.push_back({name, FingerprintOf(madeFrom)});
    return path;
}

// Whether a new file of that name takes nothing away from anybody.
void PublishFolder::RequireFree(const QString& name) const
{
    const QString path = folder_ + u'/' + name;
    try {
        if (!IsInnerName(name) || name.startsWith(QLatin1String(workName)) ||
            name == QLatin1String(publishListName))
            throw std::system_error(std::make_error_code(std::errc::invalid_argument));
        RequireInside(folder_, name);
    } catch (const std::system_error& error) {
        ThrowNotWritten(QFileInfo(path).path(), ReasonOf(error.code()));
    }
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink())
        return;
    const auto earlier = earlier_.constFind(FoldedName(name));
    if (earlier == earlier_.cend())
        throw PublishError(
            FolderTexts::tr("The file \"%1\" is in the way, and it was not published into the "
                            "folder. Move it away, or choose another folder.")
                .arg(QDir::toNativeSeparators(path)));
    if (!IsAsMade(*earlier, LookAtFile(path)))
        throw PublishError(
            FolderTexts::tr("The file \"%1\" has been changed since it was published. Move it "
                            "away, or choose another folder.")
                .arg(QDir::toNativeSeparators(path)));
}

std::vector<PublishedFile> PublishFolder::NewList() const
{
    std::vector<PublishedFile> list;
    for (const PublishedFile& file : kept_) {
        if (!madeNames_.contains(FoldedName(file.name)))
            list.push_back(file);
    }
    for (const PublishedFile& file : made_) {
        const auto written = LookAtFile(work_ + newName + u'/' + file.name);
        if (!written)
            continue;
        RequireFree(file.name);
        list.push_back({file.name, file.from, written->size, written->time});
    }
    return list;
}

void PublishFolder::Commit()
{
    const std::vector<PublishedFile> list = NewList();
    PublishMoves moves(folder_, work_ + newName, work_ + oldName);
    try {
        WriteThroughDisk(work_);
        WriteWhole(work_ + readyName, WritePublishList({kind_, list}));
        mustFinish_ = true;
        PutInPlace(list, moves);
    } catch (const std::system_error& error) {
        if (moves.Undo())
            mustFinish_ = QFileInfo::exists(work_ + readyName) && !QFile::remove(work_ + readyName);
        throw PublishError(FolderTexts::tr("The new files cannot be put in place: %1")
                               .arg(ReasonOf(error.code())));
    }
    mustFinish_ = false;
    isCommitted_ = true;
}

void PublishFolder::PutInPlace(const std::vector<PublishedFile>& list, PublishMoves& moves)
{
    for (const PublishedFile& file : list)
        moves.Place(file.name);
    for (const QString& name : StaleFiles(list))
        moves.TakeAway(name);
    MoveFile(work_ + readyName, ListPathIn(folder_)); // the last step
    moves.RemoveEmptyFolders();
    try {
        WriteThroughDisk(folder_);
    } catch (const std::system_error&) {
        // All is in its place, even if the file system cannot say so.
    }
}

QStringList PublishFolder::StaleFiles(const std::vector<PublishedFile>& list) const
{
    QHash<QString, QString> names;
    for (const PublishedFile& file : list)
        names.insert(FoldedName(file.name), file.name);
    QStringList stale;
    for (const PublishedFile& file : earlier_) {
        const QString now = names.value(FoldedName(file.name));
        const QString path = folder_ + u'/' + file.name;
        std::error_code unknown; // some systems take names for one that differ only in case
        const bool isNew =
            now == file.name ||
            (!now.isEmpty() && std::filesystem::equivalent((folder_ + u'/' + now).toStdU16String(),
                                                           path.toStdU16String(), unknown));
        if (!isNew && IsAsMade(file, LookAtFile(path)))
            stale += file.name;
    }
    return stale;
}

// What must be finished stays for the next run.
void PublishFolder::ClearWork()
{
    if (lock_ && !mustFinish_) {
        RemoveAll(work_ + newName);
        RemoveAll(work_ + oldName);
        QFile::remove(work_ + readyName);
        QFile::remove(work_ + readyName + QStringLiteral(".part"));
    }
    lock_.reset(); // removes its own file
    QDir().rmdir(work_);
    if (isCommitted_ || mustFinish_)
        return;
    for (auto made = madeFolders_.crbegin(); made != madeFolders_.crend(); ++made)
        QDir().rmdir(*made);
}
