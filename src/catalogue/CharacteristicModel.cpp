// SPDX-License-Identifier: MIT
#include "catalogue/CharacteristicModel.h"

#include "core/Album.h"
#include "core/TextRoutines.h"
#include "platform/text/LikePattern.h"

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

QString AddValueToTable(int column, const QString& typed)
{
    const QString value = CleanValue(typed.isEmpty() ? noValue : typed);
    try {
        RecordSet table(GeneralModule::AlbumDatabase, ValueTableOf(column));
        table.AddNew();
        table.Set(u"Name", value);
        table.Update();
    } catch (const DatabaseError&) {
        return {};
    }
    return value;
}
