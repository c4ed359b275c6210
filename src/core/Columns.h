// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Every picture is described by twelve short texts, the values of columns 0 to 11, in four groups
// of three.
inline constexpr int columnCount = 12;
inline constexpr int columnsPerGroup = 3;
inline constexpr int groupCount = 4;

// "Car0" to "Car11": the field that holds a column's value for a picture, or a paragraph's filter
// on it. Its label is the parameter, and its allowed values are the table, of that name.
QString CarField(int column);

} // namespace GeneralModule
