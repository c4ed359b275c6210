// SPDX-License-Identifier: MIT
#include "catalogue/ChangeText.h"

#include "catalogue/ColumnTitles.h"

#include <QCoreApplication>

namespace {

struct ChangeTexts
{
    Q_DECLARE_TR_FUNCTIONS(ChangeText)
};

constexpr qsizetype maxShownValues = 8;

QString NewValuesText(const ChangeCounts& counts)
{
    QStringList values;
    for (const auto& [column, value] : counts.newValues) {
        if (values.size() == maxShownValues) {
            values += QStringLiteral("...");
            break;
        }
        values += QStringLiteral("%1 (%2)").arg(value, DistinctTitle(column));
    }
    return values.join(QStringLiteral(", "));
}

} // namespace

QString ChangeText(const std::vector<DescriptionChange>& changes)
{
    if (changes.empty())
        return ChangeTexts::tr("Nothing changes.");
    const ChangeCounts counts = CountChanges(changes);
    QStringList parts;
    if (counts.legends > 0)
        parts += ChangeTexts::tr("%n legend(s)", nullptr, counts.legends);
    for (int column = 0; column < columnCount; ++column) {
        const int number = counts.values[std::size_t(column)];
        if (number > 0)
            parts += ChangeTexts::tr("%1: %n value(s)", nullptr, number).arg(DistinctTitle(column));
    }
    QString text = ChangeTexts::tr("%n picture(s) change: %1.", nullptr, counts.pictures)
                       .arg(parts.join(QStringLiteral(", ")));
    if (!counts.newValues.empty())
        text +=
            u'\n' + ChangeTexts::tr("%n new value(s): %1", nullptr, int(counts.newValues.size()))
                        .arg(NewValuesText(counts));
    return text;
}

QString ResultText(const ChangeResult& result)
{
    QString text = ChangeTexts::tr("%n picture(s) changed.", nullptr, result.pictures);
    if (result.conflicts > 0)
        text +=
            u'\n' + ChangeTexts::tr("%n picture(s) were changed elsewhere meanwhile; that stays.",
                                    nullptr, result.conflicts);
    return text;
}
