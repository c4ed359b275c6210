// SPDX-License-Identifier: MIT
#include "story/PastedText.h"

#include "core/TextRoutines.h"

const std::array<PastedMarkup, 12>& PastedMarkups()
{
    static const std::array<PastedMarkup, 12> markups{{
        {QStringLiteral("<P>"), QString()},
        {QStringLiteral("</P>"), QString()},
        {QStringLiteral("&egrave;"), QStringLiteral("è")},
        {QStringLiteral("&eacute;"), QStringLiteral("é")},
        {QStringLiteral("&ecirc;"), QStringLiteral("ê")},
        {QStringLiteral("&agrave;"), QStringLiteral("à")},
        {QStringLiteral("&acirc;"), QStringLiteral("â")},
        {QStringLiteral("&ucirc;"), QStringLiteral("û")},
        {QStringLiteral("&icirc;"), QStringLiteral("î")},
        {QStringLiteral("&ocirc;"), QStringLiteral("ô")},
        {QStringLiteral("&ugrave;"), QStringLiteral("ù")},
        {QStringLiteral("&ccedil;"), QStringLiteral("ç")},
    }};
    return markups;
}

QString CleanPastedText(const QString& text)
{
    QString clean = text;
    for (const PastedMarkup& markup : PastedMarkups())
        clean = GeneralModule::ReplaceText(clean, markup.found, markup.replacement, 1);
    return clean;
}
