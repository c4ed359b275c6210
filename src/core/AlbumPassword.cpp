// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/PasswordChange.h"
#include "platform/data/DatabaseExport.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FileReplacement.h"

#include <QCoreApplication>

#include <system_error>

namespace GeneralModule {

bool AlbumHasPassword()
{
    return !AlbumDatabase->GetPassword().isEmpty();
}

bool SetAlbumPassword(const QString& password)
{
    const QString album = AlbumDatabase->GetPath();
    const QString oldPassword = AlbumDatabase->GetPassword();
    bool isReleased = false;
    bool isWritten = false;
    try {
        const RememberedPasswordChange change(album);
        FileReplacement replacement(album);
        Dialogs::Door().RunLong(
            QCoreApplication::translate("Album", "The album is being written anew..."), true,
            [&](const auto& isStopped) {
                isWritten =
                    ExportDatabase(*AlbumDatabase, replacement.GetPath(), password, isStopped);
                if (isWritten)
                    replacement.WriteThrough();
            });
        if (!isWritten)
            return false;
        ReleaseAlbum();
        isReleased = true;
        replacement.Commit();
    } catch (const std::system_error& error) {
        if (isReleased)
            OpenAlbum(album, oldPassword);
        throw DatabaseError(
            DatabaseError::DiskError,
            QCoreApplication::translate("Album", "The album's file could not be replaced: %1")
                .arg(QString::fromLocal8Bit(error.code().message().c_str())));
    }
    OpenAlbum(album, password);
    return true;
}

} // namespace GeneralModule
