// SPDX-License-Identifier: MIT
#include "Translations.h"

#include "core/Settings.h"
#include "platform/shell/UserLanguages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

bool Install(QCoreApplication& application, const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(&application);
    return translator->load(name, folder) && QCoreApplication::installTranslator(translator);
}

// Numbers are written as they are where the desktop is.
void UseChosenLanguage()
{
    const QString chosen = GeneralModule::GetLanguage();
    if (!chosen.isEmpty())
        QLocale::setDefault(QLocale(QLocale(chosen).language(), QLocale::system().territory()));
}

} // namespace

void InstallTranslations(QCoreApplication& application)
{
    UseChosenLanguage();
    for (const QString& language : LanguagesBeforeEnglish()) {
        if (!Install(application, QStringLiteral("lumenark_") + language,
                     QStringLiteral(":/translations")))
            continue;
        // In the same language, so that no box mixes two.
        Install(application, QStringLiteral("qtbase_") + language,
                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return;
    }
    Install(application, QStringLiteral("lumenark_en"), QStringLiteral(":/translations"));
}
