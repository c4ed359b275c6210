// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The user's own settings: an INI file named after the application in the user's configuration
// folder. Reading a missing key gives an empty text. A written value is on disk on return; in a
// read-only folder only the setting is lost.
QString ReadUserSetting(const QString& application, const QString& section, const QString& key);
void WriteUserSetting(const QString& application, const QString& section, const QString& key,
                      const QString& value);
