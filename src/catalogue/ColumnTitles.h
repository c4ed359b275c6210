// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What columns of characteristics are called where the user sees them. A column without a label is
// called by its number, counted from 1: "Caracteristic 7".

QString ColumnTitle(int column);

// For the one caption that a column and its twin share: their label, else both numbers.
QString SharedTitle(int column);

// Whether the album names any of its columns.
bool HasColumnLabels();
