// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/FilterText.h"
#include "platform/data/TableLayout.h"

#include <vector>

// A filter translated to SQL. Filters that differ only in their values have the same condition and
// share one prepared statement.
struct FilterSql
{
    QByteArray condition;           // empty: every row
    std::vector<FieldValue> values; // for the parameters ?2, ?3 and so on
};

// An empty text selects every row. Throws DatabaseError: BadFilter and TooComplex like ParseFilter,
// UnknownFieldInFilter, TypeMismatch for a text compared with a number, InvalidPattern.
FilterSql TranslateFilter(QStringView text, const TableLayout& table);
