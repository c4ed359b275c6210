// SPDX-License-Identifier: MIT
#include "catalogue/PictureLoading.h"

#include "catalogue/CharacteristicModel.h"
#include "core/Album.h"
#include "platform/data/Statement.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/FolderListing.h"

#include <QCoreApplication>
#include <QDir>

#include <array>
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
    Loader()
        : images_(AlbumDatabase, QStringLiteral("Image")),
          find_(AlbumDatabase->GetEngine(), "SELECT 1 FROM \"Image\" WHERE \"File\"=?1")
    {
        for (std::size_t column = 0; column < columns_.size(); ++column)
            columns_[column] = images_.FieldNumber(QStringLiteral("Car%1").arg(column));
    }

    void AddUnlessHeld(const QString& path)
    {
        find_.Bind(1, path);
        const bool isHeld = find_.Step();
        find_.Reset();
        if (isHeld)
            return;
        images_.AddNew();
        images_.Set(file_, path);
        for (const int column : columns_)
            images_.Set(column, noValue);
        images_.Set(legend_, QString());
        images_.Update();
    }

private:
    RecordSet images_;
    // The look-up by path as a statement: reading a filter for each file would take longer than
    // everything else.
    Statement find_;
    int file_ = images_.FieldNumber(u"File");
    int legend_ = images_.FieldNumber(u"Legend");
    std::array<int, columnCount> columns_{};
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
