// SPDX-License-Identifier: MIT
#include "core/TextRoutines.h"

#include <algorithm>

namespace GeneralModule {

QString ReplaceText(const QString& text, const QString& find, const QString& replacement, int start)
{
    if (find.isEmpty())
        return text;
    QString result = text;
    qsizetype position = std::max(start, 1) - 1;
    while ((position = result.indexOf(find, position)) >= 0) {
        result.replace(position, find.size(), replacement);
        position += replacement.size();
    }
    return result;
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
