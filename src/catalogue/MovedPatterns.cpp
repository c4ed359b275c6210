// SPDX-License-Identifier: MIT
#include "catalogue/MovedPatterns.h"

#include "catalogue/PatternHead.h"
#include "core/AlbumSets.h"
#include "platform/data/Statement.h"
#include "platform/files/PathRoutines.h"
#include "platform/text/LikePattern.h"

namespace {

bool HoldsPictures(const QString& folder)
{
    Statement inside(GeneralModule::AlbumDatabase->GetEngine(),
                     "SELECT 1 FROM Image WHERE File>=?1 AND File<?2 LIMIT 1");
    inside.Bind(1, folder);
    inside.Bind(2, folder.chopped(1) + QChar(folder.back().unicode() + 1));
    return inside.Step();
}

} // namespace

MovedFolders::MovedFolders(const QHash<QString, QString>& moved)
{
    for (auto path = moved.begin(); path != moved.end(); ++path)
        moved_.insert(path.key(), path.value());
}

bool MovedFolders::Reaches(const QString& pattern) const
{
    const QString folder = HeadOf(pattern).folder;
    const auto first = moved_.lowerBound(folder);
    return !folder.isEmpty() && first != moved_.end() && first.key().startsWith(folder);
}

std::optional<QString> MovedFolders::FollowFolder(const QString& folder) const
{
    QString newFolder;
    for (auto path = moved_.lowerBound(folder);
         path != moved_.end() && path.key().startsWith(folder); ++path) {
        const QString name = path.key().sliced(folder.size());
        const QString& now = path.value();
        if (newFolder.isEmpty() && FolderOf(name).isEmpty())
            newFolder = FolderOf(now);
        if (newFolder.isEmpty())
            newFolder = now.left(now.size() - name.size());
        if (now != newFolder + PatternRest(name, folder, newFolder))
            return std::nullopt;
    }
    if (newFolder.isEmpty() || HoldsPictures(folder))
        return std::nullopt;
    return newFolder;
}

std::optional<QString> MovedFolders::Follow(const QString& pattern) const
{
    const PatternHead head = HeadOf(pattern);
    const std::optional<QString> newFolder = FollowFolder(head.folder);
    if (!newFolder)
        return std::nullopt;
    return EscapedForLike(*newFolder) +
           PatternRest(pattern.sliced(head.length), head.folder, *newFolder);
}
