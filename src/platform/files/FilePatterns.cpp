// SPDX-License-Identifier: MIT
#include "platform/files/FilePatterns.h"

#include <algorithm>

namespace {

// The character itself, or a list of its two letter cases.
QString AsLikeCharacter(char32_t character)
{
    if (character == U'[' || character == U'#')
        return QStringLiteral("[%1]").arg(QChar(character));
    const char32_t lower = QChar::toLower(character);
    const char32_t upper = QChar::toUpper(character);
    if (lower == upper)
        return QString::fromUcs4(&character, 1);
    return QLatin1Char('[') + QString::fromUcs4(&lower, 1) + QString::fromUcs4(&upper, 1) +
           QLatin1Char(']');
}

QString AsLikePattern(const QString& pattern)
{
    if (pattern.trimmed() == QLatin1String("*.*"))
        return QStringLiteral("*");
    QString result;
    for (const char32_t character : pattern.toUcs4())
        result += AsLikeCharacter(character);
    return result;
}

} // namespace

FilePatterns::FilePatterns(const QString& patterns)
{
    for (const QString& pattern : SplitPatterns(AsLikePatterns(patterns)))
        patterns_.emplace_back(pattern.toStdString(), LikePattern::Case::Sensitive);
}

bool FilePatterns::Match(const QString& name) const
{
    const QByteArray utf8 = name.toUtf8();
    const std::string_view text(utf8.constData(), std::size_t(utf8.size()));
    return std::any_of(patterns_.begin(), patterns_.end(),
                       [text](const LikePattern& pattern) { return pattern.Matches(text); });
}

QString AsLikePatterns(const QString& patterns)
{
    QStringList parts = patterns.split(u';');
    for (QString& part : parts)
        part = AsLikePattern(part);
    return parts.join(u';');
}

QStringList SplitPatterns(const QString& patterns)
{
    QStringList result{patterns};
    QString part;
    bool isInList = false;
    for (const QChar character : patterns + QLatin1Char(';')) {
        isInList = character == u'[' || (isInList && character != u']');
        if (character != u';' || isInList) {
            part += character;
            continue;
        }
        part = part.trimmed();
        if (!part.isEmpty() && part != patterns)
            result += part;
        part.clear();
    }
    return result;
}
