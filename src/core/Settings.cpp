// SPDX-License-Identifier: MIT
#include "core/Settings.h"

#include "platform/shell/UserSettings.h"

namespace {

const QString application = QStringLiteral("QVRLumenark");
const QString userSection = QStringLiteral("User");
const QString lastAlbum = QStringLiteral("LastDBOpened");

const QString languageKey = QStringLiteral("Language");

} // namespace

namespace GeneralModule {

QString GetUserSetting(const QString& section, const QString& key)
{
    return ReadUserSetting(application, section, key);
}

void SaveUserSetting(const QString& section, const QString& key, const QString& value)
{
    WriteUserSetting(application, section, key, value);
}

QString GetLastAlbum()
{
    return GetUserSetting(userSection, lastAlbum);
}

void SaveLastAlbum(const QString& path)
{
    SaveUserSetting(userSection, lastAlbum, path);
}

QString GetLanguage()
{
    return GetUserSetting(userSection, languageKey);
}

void SaveLanguage(const QString& code)
{
    SaveUserSetting(userSection, languageKey, code);
}

} // namespace GeneralModule
