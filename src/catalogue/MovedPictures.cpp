// SPDX-License-Identifier: MIT
#include "catalogue/MovedPictures.h"

#include "core/Album.h"
#include "core/PathRoutines.h"
#include "core/TextRoutines.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/FolderListing.h"
#include "platform/text/LikePattern.h"

#include <QFileInfo>

using namespace GeneralModule;

QStringList PictureFolders()
{
    RecordSet images(AlbumDatabase, QStringLiteral("Image"));
    const RecordSet::Walk walk(images);
    const int file = images.FieldNumber(u"File");
    QStringList folders;
    for (images.MoveFirst(); !images.AtEnd(); images.MoveNext()) {
        const QString folder = FolderOf(images.TextOrEmpty(file));
        if (folders.isEmpty() || folders.constLast().compare(folder, Qt::CaseInsensitive) != 0)
            folders.append(folder);
    }
    return folders;
}

int RepointPictures(const QString& oldFolder, const QString& newFolder,
                    const MovingProgress& progress)
{
    // A record set of its own: while the windows are kept alive, others move the shared one.
    RecordSet images(AlbumDatabase, QStringLiteral("Image"));
    const int file = images.FieldNumber(u"File");
    const QString pattern = EscapedForLike(oldFolder) + QStringLiteral("*.*");
    const QString filter = QStringLiteral("([File] LIKE ") + Quoted(pattern) + QLatin1Char(')');
    WriteBatch batch(AlbumDatabase);
    const RecordSet::Walk walk(images);
    int updated = 0;
    for (images.FindFirst(filter); !images.NoMatch(); images.FindNext(filter)) {
        const QString path = PathIn(newFolder, FileNameOf(images.Text(file)));
        if (QFileInfo(path).isFile()) {
            images.Edit();
            images.Set(u"File", path);
            images.Update();
            batch.RowDone();
            ++updated;
        }
        if (!progress(updated))
            break;
    }
    batch.Finish();
    return updated;
}
