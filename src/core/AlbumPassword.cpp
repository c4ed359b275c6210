// SPDX-License-Identifier: MIT
#include "core/AlbumPassword.h"

#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/Settings.h"
#include "platform/data/DatabaseExport.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FileReplacement.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <system_error>

namespace {

const QString passwordSection = QStringLiteral("User");
const QString changing = QStringLiteral("PasswordChange");

// Remembers for the next start that the album's password is being changed.
class RememberedChange
{
public:
    explicit RememberedChange(const QString& album)
    {
        GeneralModule::SaveUserSetting(passwordSection, changing,
                                       QFileInfo(album).canonicalFilePath());
    }
    ~RememberedChange() { GeneralModule::SaveUserSetting(passwordSection, changing, {}); }
    Q_DISABLE_COPY_MOVE(RememberedChange)
};

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
    bool isReleased = false;
    try {
        const RememberedChange change(album);
        FileReplacement replacement(album);
        Dialogs::Door().RunLong(
            QCoreApplication::translate("Album", "The album is being written anew..."), false,
            [&](const auto&) { ExportDatabase(*AlbumDatabase, replacement.GetPath(), password); });
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
}

void ClearBrokenPasswordChange(const QString& album)
{
    const QString changed = GetUserSetting(passwordSection, changing);
    if (changed.isEmpty() || changed != QFileInfo(album).canonicalFilePath())
        return;
    SaveUserSetting(passwordSection, changing, {});
    try {
        if (FileReplacement::ClearLeftovers(album))
            Tell(QCoreApplication::translate(
                "Album", "The last change of this album's password was broken off. What it left "
                         "beside the album has been removed."));
    } catch (const std::system_error&) {
        // The album is gone or out of reach, which its opening tells better.
    }
}

} // namespace GeneralModule
