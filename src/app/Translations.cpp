// SPDX-License-Identifier: MIT
#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

void Install(QCoreApplication& application, const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(&application);
    if (translator->load(QLocale(), name, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
}

} // namespace

void InstallTranslations(QCoreApplication& application)
{
    Install(application, QStringLiteral("qtbase"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    Install(application, QStringLiteral("lumenark"), QStringLiteral(":/translations"));
}
