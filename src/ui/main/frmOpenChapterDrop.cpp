// SPDX-License-Identifier: MIT
#include "catalogue/PictureLoading.h"
#include "core/Album.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "ui/main/DroppedFiles.h"
#include "ui/main/frmOpenChapter.h"
#include "ui_frmOpenChapter.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QScopeGuard>

using namespace GeneralModule;

namespace {

// What is told of dropped files, and a line for those that nothing can be done with.
QString WithUnusable(QStringList lines, const DroppedFiles& files)
{
    if (files.unusable > 0)
        lines += frmOpenChapter::tr("%1 file(s) left out: their names are not valid text")
                     .arg(files.unusable);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

void frmOpenChapter::dragEnterEvent(QDragEnterEvent* event)
{
    // A window in front of this one may hold something that is not saved.
    if (event->mimeData()->hasUrls() && !QApplication::activeModalWidget())
        event->acceptProposedAction();
}

void frmOpenChapter::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    const QList<QUrl> urls = event->mimeData()->urls();
    // Later, so that the program from which the files come does not wait for message boxes here.
    QMetaObject::invokeMethod(
        this,
        [this, urls] {
            if (!QApplication::activeModalWidget())
                RunGuarded([&] { TakeDropped(SortDroppedFiles(urls)); });
        },
        Qt::QueuedConnection);
}

void frmOpenChapter::TakeDropped(const DroppedFiles& files)
{
    if (files.albums.size() > 1)
        Tell(tr("Please drop one album at a time."), Dialogs::Icon::Warning);
    else if (!files.albums.isEmpty() && files.pictureCount > 0)
        Tell(tr("Please drop either an album, to open it, or pictures, to load them."),
             Dialogs::Icon::Warning);
    else if (!files.albums.isEmpty())
        OpenChosen(files.albums.first());
    else if (files.pictureCount == 0)
        Tell(
            WithUnusable({tr("There is neither an album nor a picture among these files.")}, files),
            Dialogs::Icon::Warning);
    else if (!AlbumOpen())
        Tell(tr("Please open or create an album first, then drop the pictures."),
             Dialogs::Icon::Warning);
    else if (IsAlbumReadOnly())
        Tell(ReadOnlyReason(), Dialogs::Icon::Warning);
    else
        LoadDropped(files);
}

void frmOpenChapter::LoadDropped(const DroppedFiles& files)
{
    const qint64 before = ImageSet->RecordCount();
    int done = 0;
    {
        const BusyPointer busy;
        ui_->progress->Begin(files.pictureCount, true);
        const auto end = qScopeGuard([this] {
            ui_->progress->End();
            RefreshState();
        });
        bool goesOn = true;
        for (auto folder = files.pictures.begin(); goesOn && folder != files.pictures.end();
             ++folder) {
            const int earlier = done;
            done += LoadPictures(folder.key(), folder.value(), [&](int ofFolder) {
                goesOn = ui_->progress->Advance(earlier + ofFolder);
                return goesOn;
            });
        }
    }
    const int loaded = int(ImageSet->RecordCount() - before);
    QStringList lines{QString::number(loaded) + tr(" picture(s) loaded")};
    if (done > loaded)
        lines += tr("%1 picture(s) were in the album already").arg(done - loaded);
    if (done < files.pictureCount)
        lines += tr("%1 picture(s) left out, because you stopped").arg(files.pictureCount - done);
    if (files.others > 0)
        lines += tr("%1 file(s) left out: no pictures").arg(files.others);
    Tell(WithUnusable(lines, files));
}
