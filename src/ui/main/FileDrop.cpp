// SPDX-License-Identifier: MIT
#include "ui/main/FileDrop.h"

#include "catalogue/DroppedFiles.h"
#include "catalogue/Picture.h"
#include "catalogue/PictureLoading.h"
#include "core/Album.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/WorkProgress.h"

#include <QScopeGuard>

using namespace GeneralModule;

namespace {

QString Joined(const QStringList& lines)
{
    return lines.join(QLatin1Char('\n'));
}

} // namespace

FileDrop::FileDrop(WorkProgress* progress, std::function<void(const QString& path)> openAlbum,
                   std::function<void()> onLoaded)
    : progress_(progress), openAlbum_(std::move(openAlbum)), onLoaded_(std::move(onLoaded))
{
}

void FileDrop::Take(const QList<QUrl>& urls) const
{
    const bool canLoad = IsAlbumOpen() && !IsAlbumReadOnly();
    const std::optional<DroppedFiles> sorted = SortDroppedFiles(urls, canLoad);
    if (!sorted)
        return;
    const DroppedFiles& files = *sorted;
    const QString reason = ReasonAgainst(files);
    if (!reason.isEmpty())
        return Tell(reason, Dialogs::Icon::Warning);
    if (files.albums.isEmpty())
        return LoadAndTell(files);
    openAlbum_(files.albums.first());
    if (!files.unreadable.isEmpty())
        Tell(Joined(files.unreadable), Dialogs::Icon::Warning);
}

QString FileDrop::ReasonAgainst(const DroppedFiles& files)
{
    if (files.albums.size() > 1)
        return tr("Please drop one album at a time.");
    if (!files.albums.isEmpty() && files.pictureCount > 0)
        return tr("Please drop either an album, to open it, or pictures, to load them.");
    if (!files.albums.isEmpty())
        return {};
    if (files.pictureCount == 0)
        return Joined(
            QStringList{tr("There is neither an album nor a picture among these files.")} +
            files.DescribeUnusable());
    if (!IsAlbumOpen())
        return tr("Please open or create an album first, then drop the pictures.");
    return IsAlbumReadOnly() ? ReadOnlyReason() : QString();
}

int FileDrop::Load(const DroppedFiles& files) const
{
    const BusyPointer busy;
    progress_->Begin(files.pictureCount, true);
    const auto end = qScopeGuard([this] {
        progress_->End();
        onLoaded_();
    });
    return LoadPictures(files.pictures, [this](int done) { return progress_->Advance(done); });
}

void FileDrop::LoadAndTell(const DroppedFiles& files) const
{
    const qint64 before = CountPictures();
    const int done = Load(files);
    const int loaded = int(CountPictures() - before);
    QStringList lines{tr("%n picture(s) loaded", nullptr, loaded)};
    if (done > loaded)
        lines += tr("%n picture(s) were in the album already", nullptr, done - loaded);
    if (done < files.pictureCount)
        lines +=
            tr("%n picture(s) left out, because you stopped", nullptr, files.pictureCount - done);
    Tell(Joined(lines + files.DescribeLeftOut()));
}
