// SPDX-License-Identifier: MIT
#pragma once

#include "core/Columns.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

// What the columns of Columns.h may hold. Those of groups 1 and 2 are twins: they describe two
// subjects of the same kind, and share labels and tables of allowed values.

using GeneralModule::CarField;
using GeneralModule::columnCount;
using GeneralModule::columnsPerGroup;
using GeneralModule::groupCount;

// Columns with a label and a value table of their own.
inline constexpr std::array labelledColumns{0, 1, 2, 3, 4, 5, 9, 10, 11};

// Marks a column without a value.
inline const QString noValue = QStringLiteral("-");

// Longest value, in characters as a reader counts them: a letter and its accents are one.
constexpr int longestValue = 20;

// 0 to 3, for a column from 0 to 11.
constexpr int GroupOf(int column)
{
    return column / columnsPerGroup;
}

// The column whose label and value table a column uses: 6, 7, 8 use those of 3, 4, 5, all others
// their own.
constexpr int LabelledColumnOf(int column)
{
    return GroupOf(column) == 2 ? column - columnsPerGroup : column;
}

// Name of the table of a column's allowed values.
QString ValueTableOf(int column);

// 3, 4, 5 give 6, 7, 8; all others none.
std::optional<int> TwinColumnOf(int column);

// Markers begin with neither a letter of any script, nor a comma, nor a digit from 0 to 9. They
// mean something to the program; users cannot delete or change them.
bool IsSpecialMarker(const QString& value);

// A typed text made fit for filters: no ";", blanks for apostrophes, maximum 20 characters, no
// blanks at the ends. May be empty.
QString CleanValue(const QString& typed);

// The value of a text typed for a picture: an ordinary value or an empty text stays, a text that
// begins with "-" becomes "-", and any other marker loses its first character.
QString NormalizedValue(const QString& typed);

// The allowed values of a column, in the order in which they were added.
QStringList ValuesOf(int column);

// Adds the value, cleaned, to a column's table; an empty one counts as "-". Returns the value
// added, or an empty text when the table already holds it, ignoring case. Throws DatabaseError when
// the album cannot be changed.
QString AddValueToTable(int column, const QString& typed);

// Pictures and paragraphs that have the value keep it.
void RemoveValueFromTable(int column, const QString& value);
