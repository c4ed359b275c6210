// SPDX-License-Identifier: MIT
#include "publish/PublishMoves.h"

#include "publish/DiskFiles.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

fs::path ToPath(const QString& path)
{
    return fs::path(path.toStdU16String());
}

bool IsAnythingAt(const QString& path)
{
    std::error_code unknown;
    return fs::exists(fs::symlink_status(ToPath(path), unknown));
}

// "a/b/c.jpg": "a", "a/b".
QStringList FoldersOf(const QString& name)
{
    QStringList folders;
    for (qsizetype at = name.indexOf(u'/'); at >= 0; at = name.indexOf(u'/', at + 1))
        folders += name.first(at);
    return folders;
}

} // namespace

PublishMoves::PublishMoves(const QString& folder, const QString& ready, const QString& aside)
    : folder_(folder + u'/'), ready_(ready + u'/'), aside_(aside + u'/')
{
}

void PublishMoves::Place(const QString& name)
{
    if (!IsAnythingAt(ready_ + name))
        return;
    RequireInside(folder_, name);
    MakeFolderOf(name);
    moves_.push_back({name});
    if (IsAnythingAt(folder_ + name))
        SetAside(name);
    MoveFile(ready_ + name, folder_ + name);
    moves_.back().isPlaced = true;
}

void PublishMoves::TakeAway(const QString& name)
{
    RequireInside(folder_, name);
    fs::create_directories(ToPath(QFileInfo(aside_ + name).path()));
    moves_.push_back({name});
    MoveFile(folder_ + name, aside_ + name);
    moves_.back().hadOld = true;
    leftFolders_ += FoldersOf(name);
}

void PublishMoves::RemoveEmptyFolders()
{
    leftFolders_.removeDuplicates();
    leftFolders_.sort(); // inner folders after theirs
    for (auto folder = leftFolders_.crbegin(); folder != leftFolders_.crend(); ++folder)
        QDir().rmdir(folder_ + *folder);
}

bool PublishMoves::Undo()
{
    bool isDone = true;
    for (auto move = moves_.crbegin(); move != moves_.crend(); ++move)
        isDone = TakeBack(*move) && isDone;
    for (auto made = madeFolders_.crbegin(); made != madeFolders_.crend(); ++made)
        QDir().rmdir(*made);
    return isDone;
}

// The old file stays in its place by a second name until the new one replaces it; a file system
// without such names has it away for that moment.
void PublishMoves::SetAside(const QString& name)
{
    fs::create_directories(ToPath(QFileInfo(aside_ + name).path()));
    std::error_code error;
    fs::create_hard_link(ToPath(folder_ + name), ToPath(aside_ + name), error);
    if (error)
        MoveFile(folder_ + name, aside_ + name);
    moves_.back().hadOld = true;
}

void PublishMoves::MakeFolderOf(const QString& name)
{
    for (const QString& folder : FoldersOf(name)) {
        if (fs::create_directory(ToPath(folder_ + folder)))
            madeFolders_ += folder_ + folder;
    }
}

bool PublishMoves::TakeBack(const Move& move) const
{
    std::error_code error;
    if (move.isPlaced)
        fs::rename(ToPath(folder_ + move.name), ToPath(ready_ + move.name), error);
    if (!error && move.hadOld)
        fs::rename(ToPath(aside_ + move.name), ToPath(folder_ + move.name), error);
    return !error;
}

void RequireInside(const QString& folder, const QString& name)
{
    for (const QString& each : FoldersOf(name)) {
        std::error_code unknown;
        const fs::file_status status =
            fs::symlink_status(ToPath(QDir(folder).filePath(each)), unknown);
        if (fs::exists(status) && !fs::is_directory(status))
            throw std::system_error(std::make_error_code(std::errc::not_a_directory));
    }
}
