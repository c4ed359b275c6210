// SPDX-License-Identifier: MIT
#include "catalogue/MovedPictures.h"

#include "core/AlbumPaths.h"
#include "core/AlbumSets.h"
#include "core/TextRoutines.h"
#include "core/UndoSteps.h"
#include "platform/data/Statement.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/FolderListing.h"
#include "platform/files/PathRoutines.h"
#include "platform/text/LikePattern.h"

#include <QFileInfo>
#include <QSet>

using namespace GeneralModule;

namespace {

class Repointing
{
public:
    Repointing(const QString& oldFolder, const QString& newFolder, const MovingProgress& progress)
        : oldFolder_(oldFolder),
          newFolder_(newFolder),
          progress_(progress),
          images_(AlbumDatabase, QStringLiteral("Image")),
          file_(images_.FieldNumber(u"File")),
          findHolder_(AlbumDatabase->GetEngine(), "SELECT 1 FROM \"Image\" WHERE \"File\"=?1")
    {
    }

    RepointedPictures Run()
    {
        const UndoStep step(UndoStep::tr("Reload Moved Pictures"), StepCounts::Shown);
        WriteBatch batch(AlbumDatabase);
        if (Take(Turn::DirectlyInFolder, batch) && hasDeeper_)
            Take(Turn::Deeper, batch);
        batch.Finish();
        CountLinksLeft();
        return done_;
    }

private:
    enum class Turn { DirectlyInFolder, Deeper };

    // False when the work must stop.
    bool Take(Turn turn, WriteBatch& batch)
    {
        const QString pattern = EscapedForLike(oldFolder_) + QStringLiteral("*.*");
        const QString filter = QStringLiteral("([File] LIKE ") + Quoted(pattern) + QLatin1Char(')');
        const RecordSet::Walk walk(images_);
        for (images_.FindFirst(filter); !images_.NoMatch(); images_.FindNext(filter)) {
            const QString path = images_.Text(file_);
            const bool isDeeper = FolderOf(path).size() > oldFolder_.size();
            hasDeeper_ = hasDeeper_ || isDeeper;
            // Skips what the first turn has moved to a deeper folder.
            if (isDeeper == (turn == Turn::Deeper) && !moved_.contains(path))
                Repoint(path, batch);
            if (!progress_(done_.updated))
                return false;
        }
        return true;
    }

    void Repoint(const QString& oldPath, WriteBatch& batch)
    {
        const QString newFile = PathIn(newFolder_, FileNameOf(oldPath));
        if (!QFileInfo(newFile).isFile())
            return;
        const QString path = PathLike(oldPath, newFile);
        if (path != oldPath && (IsHeld(newFile) || IsHeld(RelativePath(newFile)))) {
            ++done_.alreadyHeld;
            return;
        }
        images_.Edit();
        images_.Set(file_, path);
        images_.Update();
        batch.RowDone();
        ++done_.updated;
        if (path != oldPath)
            left_.insert(oldPath);
        if (path.startsWith(oldFolder_, Qt::CaseInsensitive))
            moved_.insert(path);
    }

    void CountLinksLeft()
    {
        Statement links(AlbumDatabase->GetEngine(), "SELECT File FROM LinkedImages");
        while (!left_.isEmpty() && links.Step())
            done_.linksLeft += left_.contains(QString::fromUtf8(links.GetUtf8(0))) ? 1 : 0;
    }

    bool IsHeld(const QString& path)
    {
        const QByteArray file = path.toUtf8();
        findHolder_.BindUtf8(1, file);
        const bool isHeld = !path.isEmpty() && findHolder_.Step();
        findHolder_.Reset();
        return isHeld;
    }

    const QString& oldFolder_;
    const QString& newFolder_;
    const MovingProgress& progress_;
    // A separate record set: while the windows are kept alive, others move the shared one.
    RecordSet images_;
    int file_;
    Statement findHolder_;
    QSet<QString> moved_; // new paths that the second turn may find
    QSet<QString> left_;  // former paths
    bool hasDeeper_ = false;
    RepointedPictures done_;
};

} // namespace

QStringList PictureFolders()
{
    RecordSet images(AlbumDatabase, QStringLiteral("Image"));
    const RecordSet::Walk walk(images);
    const int file = images.FieldNumber(u"File");
    QStringList folders;
    std::string last;
    for (images.MoveFirst(); !images.AtEnd(); images.MoveNext()) {
        // As most pictures lie beside the one before, few paths need to be decoded.
        const std::string_view utf8 = Utf8FolderOf(images.OpenUtf8(file));
        if (!utf8.empty() && utf8 == last)
            continue;
        last = utf8;
        const QString folder = FolderOf(images.TextOrEmpty(file));
        if (folders.isEmpty() || folders.constLast().compare(folder, Qt::CaseInsensitive) != 0)
            folders.append(folder);
    }
    return folders;
}

RepointedPictures RepointPictures(const QString& oldFolder, const QString& newFolder,
                                  const MovingProgress& progress)
{
    Repointing work(oldFolder, newFolder, progress);
    return work.Run();
}
