// SPDX-License-Identifier: MIT
#include "core/PasswordChange.h"

#include "core/Settings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/FileReplacement.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <system_error>

namespace {

const QString passwordSection = QStringLiteral("User");
const QString changing = QStringLiteral("PasswordChange");

} // namespace

namespace GeneralModule {

RememberedPasswordChange::RememberedPasswordChange(const QString& album)
{
    SaveUserSetting(passwordSection, changing, QFileInfo(album).canonicalFilePath());
}

RememberedPasswordChange::~RememberedPasswordChange()
{
    SaveUserSetting(passwordSection, changing, {});
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
        // The album is gone or out of reach, which its opening explains better.
    }
}

} // namespace GeneralModule
