// SPDX-License-Identifier: MIT
#include "core/TextRoutines.h"

#include <algorithm>

namespace GeneralModule {

QString ReplaceText(const QString& text, const QString& find, const QString& replacement, int start)
{
    if (find.isEmpty())
        return text;
    const qsizetype kept = std::min<qsizetype>(std::max(start, 1) - 1, text.size());
    return text.first(kept) + text.sliced(kept).replace(find, replacement);
}

QString LikeSafe(const QString& name)
{
    return ReplaceText(name, QStringLiteral("'"), QStringLiteral("?"), 1);
}

QString Quoted(const QString& text)
{
    return QLatin1Char('\'') + ReplaceText(text, QStringLiteral("'"), QStringLiteral("''"), 1) +
           QLatin1Char('\'');
}

} // namespace GeneralModule
