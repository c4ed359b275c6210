// SPDX-License-Identifier: MIT
#include "catalogue/PictureLoading.h"

#include "catalogue/CharacteristicModel.h"
#include "core/AlbumPaths.h"
#include "core/AlbumSets.h"
#include "core/UndoSteps.h"
#include "platform/data/Statement.h"
#include "platform/data/WriteBatch.h"
#include "platform/files/FolderListing.h"

#include <QCoreApplication>
#include <QDir>

#include <stdexcept>

namespace {

using GeneralModule::AlbumDatabase;
using GeneralModule::StepCounts;
using GeneralModule::UndoStep;

constexpr int filesPerLook = 1000; // between two checks that the folder still exists

void RequireFolder(const QString& folder)
{
    if (QDir(folder).exists())
        return;
    throw std::runtime_error(
        QCoreApplication::translate("PictureLoading", "The folder '%1' is no longer there.")
            .arg(QDir::toNativeSeparators(folder))
            .toStdString());
}

// Adds a picture without values; fields not named here get the table's defaults.
QByteArray InsertSql()
{
    QByteArray fields = "\"File\",\"Legend\"";
    QByteArray values = "?1,''";
    for (int column = 0; column < columnCount; ++column) {
        fields += ",\"Car" + QByteArray::number(column) + '"';
        values += ",'" + noValue.toUtf8() + '\'';
    }
    return "INSERT INTO \"Image\" (" + fields + ") VALUES (" + values + ')';
}

// Statements instead of a record set: parsing a filter and setting fourteen fields for each file
// would take as long as all the rest.
class Loader
{
public:
    Loader()
        : batch_(AlbumDatabase),
          find_(AlbumDatabase->GetEngine(), "SELECT 1 FROM \"Image\" WHERE \"File\"=?1"),
          insert_(AlbumDatabase->GetEngine(), InsertSql())
    {
    }

    // False when goesOn, called after each file, has returned false.
    bool Load(const QString& folder, const QStringList& names, const std::function<bool()>& goesOn)
    {
        for (qsizetype i = 0; i < names.size(); ++i) {
            if (i % filesPerLook == 0)
                RequireFolder(folder);
            const QString path = PathIn(folder, names[i]);
            if (!IsHeld(GeneralModule::RelativePath(path)))
                AddUnlessHeld(path);
            batch_.RowDone();
            if (!goesOn())
                return false;
        }
        return true;
    }

    void Finish() { batch_.Finish(); }

private:
    bool IsHeld(const QString& path)
    {
        const QByteArray file = path.toUtf8();
        find_.BindUtf8(1, file);
        const bool isHeld = !path.isEmpty() && find_.Step();
        find_.Reset();
        return isHeld;
    }

    void AddUnlessHeld(const QString& path)
    {
        if (IsHeld(path))
            return;
        const QByteArray file = path.toUtf8();
        insert_.BindUtf8(1, file);
        insert_.Run();
    }

    WriteBatch batch_;
    Statement find_;
    Statement insert_;
};

} // namespace

int LoadPictures(const QString& folder, const QStringList& names, const LoadingProgress& progress)
{
    return LoadPictures({{folder, names}}, progress);
}

int LoadPictures(const QMap<QString, QStringList>& namesByFolder, const LoadingProgress& progress)
{
    const UndoStep step(UndoStep::tr("Load Pictures"), StepCounts::Shown);
    Loader loader;
    int done = 0;
    for (auto folder = namesByFolder.begin(); folder != namesByFolder.end(); ++folder) {
        if (!loader.Load(folder.key(), folder.value(), [&] { return progress(++done); }))
            break;
    }
    loader.Finish();
    return done;
}
