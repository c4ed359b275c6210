// SPDX-License-Identifier: MIT
#include "catalogue/CharacteristicModel.h"

#include "core/Album.h"
#include "core/TextRoutines.h"
#include "platform/text/LikePattern.h"

using GeneralModule::AlbumDatabase;
using GeneralModule::Quoted;

QString ValueTableOf(int column)
{
    return QStringLiteral("Car%1").arg(LabelledColumnOf(column));
}

std::optional<int> TwinColumnOf(int column)
{
    return GroupOf(column) == 1 ? std::optional(column + columnsPerGroup) : std::nullopt;
}

bool IsSpecialMarker(const QString& value)
{
    return !IsLike(value, "[A-Z,a-z]*") && !IsLike(value, "#*");
}

QString CleanValue(const QString& typed)
{
    using GeneralModule::ReplaceText;
    const QString joined = ReplaceText(typed, QStringLiteral(";"), QString(), 1);
    return ReplaceText(joined, QStringLiteral("'"), QStringLiteral(" "), 1)
        .left(longestValue)
        .trimmed();
}

QString NormalizedValue(const QString& typed)
{
    if (typed.isEmpty() || !IsSpecialMarker(typed))
        return typed;
    return typed.startsWith(noValue) ? noValue : typed.sliced(1);
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
    RecordSet table(AlbumDatabase, ValueTableOf(column));
    // The engine itself finds equal only what differs in the case of A to Z.
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
    RecordSet table(AlbumDatabase, ValueTableOf(column));
    table.FindFirst(QStringLiteral("[Name] = ") + Quoted(value));
    if (!table.NoMatch())
        table.Delete();
}
