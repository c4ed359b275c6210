// SPDX-License-Identifier: MIT
#include "platform/shell/UserLanguages.h"

#include <QLocale>

QStringList LanguagesBeforeEnglish()
{
    QStringList codes;
    for (const QString& language : QLocale().uiLanguages()) {
        const QString code = language.section(u'-', 0, 0);
        if (code == QLatin1String("en") || code == QLatin1String("C"))
            break;
        if (!codes.contains(code))
            codes += code;
    }
    return codes;
}
