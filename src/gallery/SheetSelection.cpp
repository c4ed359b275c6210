// SPDX-License-Identifier: MIT
#include "gallery/SheetSelection.h"

#include <algorithm>

std::vector<int> RowsIn(const QItemSelection& selection)
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    return rows;
}

QItemSelection SelectionOf(const QAbstractItemModel& model, const std::vector<int>& rows)
{
    QItemSelection selection;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int first = rows[i];
        while (i + 1 < rows.size() && rows[i + 1] == rows[i] + 1)
            ++i;
        selection.append(QItemSelectionRange(model.index(first, 0), model.index(rows[i], 0)));
    }
    return selection;
}
