// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Titles of the columns of characteristics for the user. A column without a label gets its number,
// counted from 1: "Caracteristic 7".
// They move the current row of ParamsSet, and throw DatabaseError, NoAlbum while no album is open.

QString ColumnTitle(int column);

// The same, with the group's label or the column's number where the twin has the same title.
QString DistinctTitle(int column);

// For a caption that a column shares with its twin: their label, else both numbers.
QString SharedTitle(int column);

// Whether any column of the album has a label.
bool HasColumnLabels();
