// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Settings of the user, kept outside the album.
namespace GeneralModule {

// An empty text when the key was never saved.
QString GetUserSetting(const QString& section, const QString& key);
void SaveUserSetting(const QString& section, const QString& key, const QString& value);

// Full path of the album last opened successfully, empty when there is none.
QString GetLastAlbum();
void SaveLastAlbum(const QString& path);

// ISO 639 code of the language that the user has chosen for the program; empty for the desktop's.
QString GetLanguage();
void SaveLanguage(const QString& code);

} // namespace GeneralModule
