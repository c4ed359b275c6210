// SPDX-License-Identifier: MIT
#include "catalogue/FoundPictures.h"

#include "catalogue/MovedPatterns.h"
#include "core/AlbumPaths.h"
#include "core/AlbumSets.h"
#include "core/Parameters.h"
#include "core/UndoSteps.h"
#include "platform/data/Statement.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/PathRoutines.h"

#include <algorithm>

using GeneralModule::AlbumDatabase;
using GeneralModule::UndoStep;

namespace {

class Taking
{
public:
    explicit Taking(const std::function<bool(int)>& progress)
        : progress_(progress),
          holder_(AlbumDatabase->GetEngine(), "SELECT 1 FROM Image WHERE File IN (?1,?2)"),
          stored_(AlbumDatabase->GetEngine(), "SELECT 1 FROM Image WHERE rowid=?1 AND File=?2"),
          mover_(AlbumDatabase->GetEngine(), "UPDATE Image SET File=?1 WHERE rowid=?2")
    {
    }

    std::optional<FoundTaken> Run(const std::vector<FoundPicture>& pictures)
    {
        const UndoStep step(UndoStep::tr("Take Found Pictures"), GeneralModule::StepCounts::Shown);
        WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
        int done = 0;
        for (const FoundPicture& picture : pictures) {
            if (picture.IsFound())
                Move(picture.missing, picture.candidates[picture.chosen]);
            if (!progress_(++done))
                return std::nullopt;
        }
        MoveLinks();
        const MovedFolders folders(moved_);
        MovePatterns(folders);
        MoveLastFolder(folders);
        if (!progress_(done))
            return std::nullopt;
        batch.Finish();
        return taken_;
    }

private:
    void Move(const MissingPicture& picture, const QString& newFile)
    {
        const QString path = GeneralModule::PathLike(picture.file, newFile);
        stored_.Bind(1, qint64(picture.id));
        stored_.Bind(2, picture.file);
        holder_.Bind(1, newFile);
        holder_.Bind(2, GeneralModule::RelativePath(newFile));
        if (!IsThere(stored_))
            return;
        if (IsThere(holder_)) {
            ++taken_.alreadyHeld;
            return;
        }
        mover_.Bind(1, path);
        mover_.Bind(2, qint64(picture.id));
        mover_.Run();
        moved_.insert(picture.file, path);
        ++taken_.pictures;
    }

    static bool IsThere(Statement& row)
    {
        const bool isThere = row.Step();
        row.Reset();
        return isThere;
    }

    // In one walk over the links, as there is no way to find those to a file.
    void MoveLinks()
    {
        Statement links(AlbumDatabase->GetEngine(), "SELECT rowid, File FROM LinkedImages");
        std::vector<std::pair<qint64, QString>> changes;
        while (links.Step()) {
            const auto path = moved_.constFind(QString::fromUtf8(links.GetUtf8(1)));
            if (path != moved_.cend())
                changes.emplace_back(links.GetInteger(0), *path);
        }
        links.Reset();
        Write("UPDATE LinkedImages SET File=?1 WHERE rowid=?2", changes);
        taken_.links = int(changes.size());
    }

    void MovePatterns(const MovedFolders& folders)
    {
        Statement patterns(AlbumDatabase->GetEngine(),
                           "SELECT Id, FileSelection FROM Paragraph WHERE FileSelection<>''");
        std::vector<std::pair<qint64, QString>> changes;
        while (patterns.Step()) {
            const QString pattern = QString::fromUtf8(patterns.GetUtf8(1));
            if (!folders.Reaches(pattern))
                continue;
            if (const std::optional<QString> moved = folders.Follow(pattern))
                changes.emplace_back(patterns.GetInteger(0), *moved);
            else
                ++taken_.patternsLeft;
        }
        patterns.Reset();
        Write("UPDATE Paragraph SET FileSelection=?1 WHERE Id=?2", changes);
        taken_.patterns = int(changes.size());
    }

    // Where the choice of a folder begins; no wildcards stand in it, whatever its signs.
    static void MoveLastFolder(const MovedFolders& folders)
    {
        const QString last = GeneralModule::GetLastFileSelection();
        const QString folder = FolderOf(last);
        if (folder.isEmpty())
            return;
        if (const std::optional<QString> moved = folders.FollowFolder(folder))
            GeneralModule::SetLastFileSelection(*moved + last.sliced(folder.size()));
    }

    static void Write(const QByteArray& sql, const std::vector<std::pair<qint64, QString>>& changes)
    {
        Statement writer(AlbumDatabase->GetEngine(), sql);
        for (const auto& [row, text] : changes) {
            writer.Bind(1, text);
            writer.Bind(2, row);
            writer.Run();
        }
    }

    const std::function<bool(int)>& progress_;
    Statement holder_;
    Statement stored_;
    Statement mover_;
    QHash<QString, QString> moved_; // new paths by the old ones
    FoundTaken taken_;
};

} // namespace

FoundCounts CountFound(const std::vector<FoundPicture>& pictures)
{
    FoundCounts counts;
    for (const FoundPicture& picture : pictures) {
        if (picture.IsFound())
            ++counts.found;
        else if (picture.IsDoubtful())
            ++counts.doubtful;
        else
            ++counts.notFound;
    }
    return counts;
}

std::optional<FoundTaken> TakeFound(const std::vector<FoundPicture>& pictures,
                                    const std::function<bool(int done)>& progress)
{
    return Taking(progress).Run(pictures);
}
