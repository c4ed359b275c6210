// SPDX-License-Identifier: MIT
#include "Translations.h"

#include "platform/shell/UserLanguages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace {

bool Install(QCoreApplication& application, const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(&application);
    return translator->load(name, folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

void InstallTranslations(QCoreApplication& application)
{
    for (const QString& language : LanguagesBeforeEnglish()) {
        if (!Install(application, QStringLiteral("lumenark_") + language,
                     QStringLiteral(":/translations")))
            continue;
        // In the same language, so that no box mixes two.
        Install(application, QStringLiteral("qtbase_") + language,
                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return;
    }
}
