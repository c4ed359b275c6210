// SPDX-License-Identifier: MIT
#include "catalogue/ColumnTitles.h"

#include "catalogue/CharacteristicModel.h"
#include "core/Parameters.h"

#include <QCoreApplication>

#include <algorithm>

QString ColumnTitle(int column)
{
    const QString label = GeneralModule::ColumnLabel(LabelledColumnOf(column));
    return label.isEmpty()
               ? QCoreApplication::translate("ColumnTitles", "Caracteristic %1").arg(column + 1)
               : label;
}

QString DistinctTitle(int column)
{
    const bool hasTwin = GroupOf(column) == 1 || GroupOf(column) == 2;
    if (!hasTwin || GeneralModule::ColumnLabel(LabelledColumnOf(column)).isEmpty())
        return ColumnTitle(column);
    const QString group = GeneralModule::CaractLabel(GroupOf(column));
    return QStringLiteral("%1 (%2)").arg(ColumnTitle(column),
                                         group.isEmpty() ? QString::number(column + 1) : group);
}

QString SharedTitle(int column)
{
    const auto twin = TwinColumnOf(column);
    if (!twin || !GeneralModule::ColumnLabel(column).isEmpty())
        return ColumnTitle(column);
    return QCoreApplication::translate("ColumnTitles", "Caracteristic %1 / %2")
        .arg(column + 1)
        .arg(*twin + 1);
}

bool HasColumnLabels()
{
    return std::any_of(labelledColumns.begin(), labelledColumns.end(),
                       [](int column) { return !GeneralModule::ColumnLabel(column).isEmpty(); });
}
