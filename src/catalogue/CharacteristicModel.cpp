// SPDX-License-Identifier: MIT
#include "catalogue/CharacteristicModel.h"

#include "core/AlbumSets.h"
#include "core/TextRoutines.h"
#include "core/UndoSteps.h"

#include <QTextBoundaryFinder>

#include <algorithm>

using GeneralModule::AlbumDatabase;
using GeneralModule::Quoted;
using GeneralModule::StepAbout;
using GeneralModule::UndoStep;

namespace {

// UTF-16 units of one character: a base and 30 accents, the maximum in Unicode's Stream-Safe Text
// Format (UAX #15), of two units each.
constexpr qsizetype longestCharacter = 62;

// Length in UTF-16 units of the first characters as a reader counts them: never half a surrogate
// pair, never a letter without its combining accents.
qsizetype LengthOfFirst(int characters, const QString& text)
{
    const qsizetype looked = std::min(text.size(), characters * longestCharacter);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.constData(), looked);
    qsizetype length = 0;
    for (int i = 0; i < characters && length < looked; ++i)
        length = finder.toNextBoundary();
    return length;
}

char32_t FirstCodePoint(const QString& text)
{
    const bool isPair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(text[0], text[1]) : text[0].unicode();
}

} // namespace

QString ValueTableOf(int column)
{
    return CarField(LabelledColumnOf(column));
}

std::optional<int> TwinColumnOf(int column)
{
    return GroupOf(column) == 1 ? std::optional(column + columnsPerGroup) : std::nullopt;
}

bool IsSpecialMarker(const QString& value)
{
    if (value.isEmpty())
        return true;
    const char32_t first = FirstCodePoint(value);
    return !QChar::isLetter(first) && first != U',' && (first < U'0' || first > U'9');
}

QString CleanValue(const QString& typed)
{
    using GeneralModule::ReplaceText;
    const QString joined = ReplaceText(typed, QStringLiteral(";"), QString(), 1);
    const QString cleaned = ReplaceText(joined, QStringLiteral("'"), QStringLiteral(" "), 1);
    return cleaned.first(LengthOfFirst(longestValue, cleaned)).trimmed();
}

QString NormalizedValue(const QString& typed)
{
    if (typed.isEmpty() || !IsSpecialMarker(typed))
        return typed;
    return typed.startsWith(noValue) ? noValue : typed.sliced(LengthOfFirst(1, typed));
}

QStringList ValuesOf(int column)
{
    RecordSet table(AlbumDatabase, ValueTableOf(column));
    const RecordSet::Walk walk(table);
    const int name = table.FieldNumber(u"Name");
    QStringList values;
    for (table.MoveFirst(); !table.AtEnd(); table.MoveNext())
        values.append(table.TextOrEmpty(name));
    return values;
}

QString AddValueToTable(int column, const QString& typed)
{
    const QString value = CleanValue(typed.isEmpty() ? noValue : typed);
    const UndoStep step(StepAbout(UndoStep::tr("Add Value"), value));
    RecordSet table(AlbumDatabase, ValueTableOf(column));
    // The engine's own uniqueness ignores case only for A to Z.
    table.FindFirst(QStringLiteral("[Name] = ") + Quoted(value));
    if (!table.NoMatch())
        return {};
    table.AddNew();
    table.Set(u"Name", value);
    table.Update();
    return value;
}

void RemoveValueFromTable(int column, const QString& value)
{
    const UndoStep step(StepAbout(UndoStep::tr("Delete Value"), value));
    RecordSet table(AlbumDatabase, ValueTableOf(column));
    table.FindFirst(QStringLiteral("[Name] = ") + Quoted(value));
    if (!table.NoMatch())
        table.Delete();
}
