// SPDX-License-Identifier: MIT
#include "platform/files/FilePatterns.h"

#include <QStringList>

#include <algorithm>

namespace {

QString WithoutListsAndDigits(const QString& pattern)
{
    QString result;
    for (const QChar character : pattern) {
        const bool isSpecial = character == u'[' || character == u'#';
        result += isSpecial ? QStringLiteral("[%1]").arg(character) : QString(character);
    }
    return result;
}

} // namespace

FilePatterns::FilePatterns(const QString& patterns)
{
    for (const QString& part : patterns.split(u';')) {
        const QString pattern = part.trimmed();
        if (pattern == QLatin1String("*.*") || pattern == QLatin1String("*"))
            matchesAll_ = true;
        else if (!pattern.isEmpty())
            patterns_.emplace_back(WithoutListsAndDigits(pattern).toStdString(),
                                   LikePattern::Case::Insensitive);
    }
}

bool FilePatterns::Match(const QString& name) const
{
    if (matchesAll_)
        return true;
    const QByteArray utf8 = name.toUtf8();
    const std::string_view text(utf8.constData(), std::size_t(utf8.size()));
    return std::any_of(patterns_.begin(), patterns_.end(),
                       [text](const LikePattern& pattern) { return pattern.Matches(text); });
}
