// SPDX-License-Identifier: MIT
#include "core/StartUp.h"

#include "platform/shell/ProgramFolder.h"
#include "platform/shell/UserLanguages.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <random>

namespace {

std::mt19937& Random()
{
    static std::mt19937 random;
    return random;
}

} // namespace

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

int RandomBelow(int below)
{
    return below > 0 ? std::uniform_int_distribution<int>(0, below - 1)(Random()) : 0;
}

void SeedRandom(std::uint32_t seed)
{
    Random().seed(seed);
}

} // namespace GeneralModule
