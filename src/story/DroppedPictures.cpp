// SPDX-License-Identifier: MIT
#include "story/DroppedPictures.h"

#include "catalogue/DroppedFiles.h"
#include "catalogue/Picture.h"
#include "catalogue/PictureLoading.h"
#include "core/Album.h"
#include "core/AlbumPaths.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FolderListing.h"
#include "platform/widgets/BusyPointer.h"
#include "story/ParagraphLinks.h"

#include <QCoreApplication>

using GeneralModule::UndoStep;

namespace {

// Under the name that translators see.
struct DroppedPictures
{
    Q_DECLARE_TR_FUNCTIONS(DroppedPictures)
};

// As the album holds the picture, which may be relative.
QString HeldPath(const QString& path)
{
    const QString relative = GeneralModule::RelativePath(path);
    return !relative.isEmpty() && ReadPicture(relative) ? relative : path;
}

QStringList PathsOf(const DroppedFiles& files)
{
    QStringList paths;
    for (auto folder = files.pictures.begin(); folder != files.pictures.end(); ++folder) {
        for (const QString& name : folder.value())
            paths += HeldPath(PathIn(folder.key(), name));
    }
    return paths;
}

QStringList Link(qint32 paragraph, const DroppedFiles& files)
{
    const BusyPointer busy;
    const QStringList paths = PathsOf(files);
    const UndoStep step(UndoStep::tr("Link %n Pictures", nullptr, int(paths.size())));
    LoadPictures(files.pictures, [](int) { return true; });
    SetLinked(paragraph, paths, true);
    return paths;
}

} // namespace

QStringList LinkDroppedFiles(qint32 paragraph, const QList<QUrl>& urls)
{
    if (GeneralModule::IsAlbumReadOnly()) {
        Tell(GeneralModule::ReadOnlyReason(), Dialogs::Icon::Warning);
        return {};
    }
    std::optional<DroppedFiles> sorted = SortDroppedFiles(urls, true);
    if (!sorted)
        return {};
    DroppedFiles& files = *sorted;
    files.others += int(files.albums.size());
    QStringList lines = files.DescribeLeftOut();
    QStringList linked;
    if (files.pictureCount > 0)
        linked = Link(paragraph, files);
    else
        lines.prepend(DroppedPictures::tr("There is no picture among these files."));
    if (!lines.isEmpty())
        Tell(lines.join(u'\n'), Dialogs::Icon::Warning);
    return linked;
}
