// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <bitset>
#include <vector>

// A set of a table's fields, by number.
using FieldMarks = std::bitset<TableLayout::maxFields>;

// Selects rows of one table: result column 0 is the engine's row number, the columns after it are
// the fields that were marked.
class RowQuery
{
public:
    RowQuery() = default; // selects nothing until another one is assigned
    // The condition is SQL, optionally followed by ORDER BY. Throws DatabaseError.
    RowQuery(sqlite3* engine, const TableLayout& layout, const FieldMarks& fields,
             const QByteArray& condition);

    Statement& GetStatement() { return statement_; }
    const Statement& GetStatement() const { return statement_; }

    const FieldMarks& Marks() const { return marks_; }
    // The fields in the order of their columns.
    const std::vector<int>& Fields() const { return fields_; }
    // Result column of a field, 0 when it is not selected.
    int ColumnOf(int field) const { return columns_.empty() ? 0 : columns_[std::size_t(field)]; }

private:
    Statement statement_;
    FieldMarks marks_;
    std::vector<int> fields_;
    std::vector<short> columns_; // by field
};
