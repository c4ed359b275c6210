// SPDX-License-Identifier: MIT
#pragma once

#include <QItemSelection>

#include <vector>

// A selection in a list, as rows in ascending order. In a list of 100,000 all of them may be
// selected: it is handled as ranges, never row by row.
std::vector<int> RowsIn(const QItemSelection& selection);
QItemSelection SelectionOf(const QAbstractItemModel& model, const std::vector<int>& rows);
