// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The user's own settings: an INI file named after the application in the user's configuration
// folder. Reading a key that is not there gives an empty text. Writing is on disk on return; a
// folder that cannot be written loses the setting and nothing else.
QString ReadUserSetting(const QString& application, const QString& section, const QString& key);
void WriteUserSetting(const QString& application, const QString& section, const QString& key,
                      const QString& value);
