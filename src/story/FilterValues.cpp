// SPDX-License-Identifier: MIT
#include "story/FilterValues.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// The list cannot hold a hundred thousand, and nobody would look through them.
constexpr std::size_t maxUnknownChoices = 1000;

bool IsRealValue(const QString& token)
{
    return token != negation;
}

bool HasRealValue(const QStringList& tokens)
{
    return std::any_of(tokens.begin(), tokens.end(), IsRealValue);
}

// A value that contains ";" would be read back as two.
bool CanBeChosen(const QString& value)
{
    return !value.isEmpty() && !value.contains(u';') && value != negation && value != anyValue;
}

QStringList TableValues(int column)
{
    QStringList values = ValuesOf(column);
    values.removeIf([](const QString& value) { return !CanBeChosen(value); });
    std::sort(values.begin(), values.end(), [](const QString& left, const QString& right) {
        const bool leftIsOrdinary = !IsSpecialMarker(left);
        const bool rightIsOrdinary = !IsSpecialMarker(right);
        return leftIsOrdinary != rightIsOrdinary
                   ? rightIsOrdinary
                   : QString::localeAwareCompare(left.toCaseFolded(), right.toCaseFolded()) < 0;
    });
    return values;
}

} // namespace

CarValues AnyValues()
{
    CarValues values;
    values.fill(anyValue);
    return values;
}

QString NextToken(QStringView& values)
{
    const qsizetype end = values.indexOf(u';');
    const QStringView token = end < 0 ? values : values.first(end);
    values = end < 0 ? QStringView() : values.sliced(end + 1);
    return token.toString();
}

QStringList FilterTokens(const QString& filter)
{
    QStringList tokens;
    QStringView rest = filter == anyValue ? QStringView() : filter;
    for (QString token = NextToken(rest); !token.isEmpty(); token = NextToken(rest))
        tokens += token;
    return tokens;
}

bool Restricts(const QString& filter)
{
    return HasRealValue(FilterTokens(filter));
}

QString StorableFilter(const QString& filter)
{
    const QStringList tokens = FilterTokens(filter);
    QStringList kept;
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const bool isFollowed = i + 1 < tokens.size() && IsRealValue(tokens[i + 1]);
        if (IsRealValue(tokens[i]) || isFollowed)
            kept += tokens[i];
    }
    if (kept.isEmpty())
        return anyValue;
    return kept == tokens ? filter : kept.join(u';');
}

HeldTokens::HeldTokens(const QString& filter)
{
    for (const QString& token : FilterTokens(filter))
        folded_.insert(token.toCaseFolded());
}

bool HeldTokens::Contain(const QString& token) const
{
    return folded_.contains(token.toCaseFolded());
}

QString ToggleToken(const QString& filter, const QString& token)
{
    if (token == anyValue)
        return anyValue;
    QStringList tokens = FilterTokens(filter);
    if (tokens.contains(token, Qt::CaseInsensitive)) {
        tokens.removeIf(
            [&](const QString& held) { return held.compare(token, Qt::CaseInsensitive) == 0; });
        return StorableFilter(tokens.join(u';'));
    }
    if (token == negation)
        tokens.prepend(token);
    else
        tokens.append(token);
    return HasRealValue(tokens) ? StorableFilter(tokens.join(u';')) : negation;
}

QString DescribeFilter(const QString& filter)
{
    QStringList parts;
    QString prefix;
    for (const QString& token : FilterTokens(StorableFilter(filter))) {
        if (token == negation) {
            prefix = QCoreApplication::translate("FilterValues", "not ");
            continue;
        }
        parts += prefix + token;
        prefix.clear();
    }
    return parts.isEmpty() ? anyValue : parts.join(QStringLiteral(", "));
}

std::vector<FilterChoice> FilterChoices(int column, const QString& filter)
{
    std::vector<FilterChoice> choices{
        {QCoreApplication::translate("FilterValues", "* (Reset)"), anyValue}, {negation, negation}};
    QSet<QString> listed;
    for (const QString& value : TableValues(column)) {
        choices.push_back({value, value});
        listed.insert(value.toCaseFolded());
    }
    const std::size_t most = choices.size() + maxUnknownChoices;
    for (const QString& value : FilterTokens(filter)) {
        if (!IsRealValue(value) || listed.contains(value.toCaseFolded()))
            continue;
        if (choices.size() == most)
            break;
        choices.push_back({value, value, false});
        listed.insert(value.toCaseFolded());
    }
    return choices;
}
