// SPDX-License-Identifier: MIT
#include "catalogue/PictureLoading.h"

#include "catalogue/CharacteristicModel.h"
#include "core/Album.h"
#include "core/TextRoutines.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/FolderListing.h"

#include <QCoreApplication>
#include <QDir>

#include <stdexcept>

namespace {

using GeneralModule::AlbumDatabase;

constexpr int filesPerLook = 1000; // at the folder, whether it is still there

void RequireFolder(const QString& folder)
{
    if (QDir(folder).exists())
        return;
    throw std::runtime_error(
        QCoreApplication::translate("PictureLoading", "The folder '%1' is no longer there.")
            .arg(QDir::toNativeSeparators(folder))
            .toStdString());
}

class Loader
{
public:
    // A record set of its own: while the windows are kept alive, others move the shared one.
    Loader() : images_(AlbumDatabase, QStringLiteral("Image"))
    {
        for (int column = 0; column < columnCount; ++column)
            columns_.append(QStringLiteral("Car%1").arg(column));
    }

    void AddUnlessHeld(const QString& path)
    {
        images_.FindFirst(QStringLiteral("[File] = ") + GeneralModule::Quoted(path));
        if (!images_.NoMatch())
            return;
        images_.AddNew();
        images_.Set(u"File", path);
        for (const QString& column : std::as_const(columns_))
            images_.Set(column, noValue);
        images_.Set(u"Legend", QString());
        images_.Update();
    }

private:
    RecordSet images_;
    QStringList columns_;
};

} // namespace

int LoadPictures(const QString& folder, const QStringList& names, const LoadingProgress& progress)
{
    Loader loader;
    WriteBatch batch(AlbumDatabase);
    int done = 0;
    for (const QString& name : names) {
        if (done % filesPerLook == 0)
            RequireFolder(folder);
        loader.AddUnlessHeld(PathIn(folder, name));
        batch.RowDone();
        if (!progress(++done))
            break;
    }
    batch.Finish();
    return done;
}
