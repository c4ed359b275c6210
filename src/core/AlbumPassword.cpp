// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"

#include "core/Album.h"
#include "platform/data/DatabaseExport.h"
#include "platform/dialogs/Dialogs.h"

#include <QCoreApplication>
#include <QFile>
#include <QScopeGuard>

#include <cstdio>

namespace {

// The platform's rename takes the place of the old file in one step, or does nothing.
bool TakePlaceOf(const QString& file, const QString& place)
{
    for (const char* ending : {"-journal", "-wal", "-shm"})
        QFile::remove(place + QLatin1String(ending));
    return std::rename(QFile::encodeName(file).constData(), QFile::encodeName(place).constData()) ==
           0;
}

} // namespace

namespace GeneralModule {

bool AlbumHasPassword()
{
    return !AlbumDatabase->GetPassword().isEmpty();
}

void SetAlbumPassword(const QString& password)
{
    const QString album = AlbumDatabase->GetPath();
    const QString oldPassword = AlbumDatabase->GetPassword();
    const QString written = album + QStringLiteral(".new");
    Dialogs::Door().RunLong(
        QCoreApplication::translate("Album", "The album is being written anew..."), false,
        [&](const auto&) { ExportDatabase(*AlbumDatabase, written, password); });
    QFile::setPermissions(written, QFile::permissions(album));

    ReleaseAlbum();
    const bool taken = TakePlaceOf(written, album);
    if (!taken)
        QFile::remove(written);
    OpenAlbum(album, taken ? password : oldPassword);
    if (!taken) {
        throw DatabaseError(
            DatabaseError::DiskError,
            QCoreApplication::translate("Album", "The album's file could not be replaced."));
    }
}

} // namespace GeneralModule
