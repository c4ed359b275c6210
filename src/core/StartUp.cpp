// SPDX-License-Identifier: MIT
#include "core/StartUp.h"

#include "core/RandomNumbers.h"
#include "platform/shell/ProgramFolder.h"
#include "platform/shell/UserLanguages.h"

#include <QDir>
#include <QFile>

#include <chrono>

namespace GeneralModule {

void InitModule()
{
    SeedRandom(std::uint32_t(std::chrono::system_clock::now().time_since_epoch().count()));
    QDir::setCurrent(ProgramFolder());
}

QString HelpFile()
{
    for (const QString& language : LanguagesBeforeEnglish()) {
        const QString translated = ProgramFile(QStringLiteral("lumenark_%1.hlp").arg(language));
        if (QFile::exists(translated))
            return translated;
    }
    return ProgramFile(QStringLiteral("lumenark.hlp"));
}

} // namespace GeneralModule
