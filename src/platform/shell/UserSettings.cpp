// SPDX-License-Identifier: MIT
#include "platform/shell/UserSettings.h"

#include <QSettings>

namespace {

QString FullKey(const QString& section, const QString& key)
{
    return section + QLatin1Char('/') + key;
}

} // namespace

QString ReadUserSetting(const QString& application, const QString& section, const QString& key)
{
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, application);
    return settings.value(FullKey(section, key)).toString();
}

void WriteUserSetting(const QString& application, const QString& section, const QString& key,
                      const QString& value)
{
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, application);
    settings.setValue(FullKey(section, key), value);
    settings.sync();
}
