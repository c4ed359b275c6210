// SPDX-License-Identifier: MIT
#include "platform/data/RowQuery.h"

RowQuery::RowQuery(sqlite3* engine, const TableLayout& layout, const FieldMarks& fields,
                   const QByteArray& condition)
    : marks_(fields), columns_(std::size_t(layout.Count()), 0)
{
    QByteArray sql = "SELECT rowid";
    for (int field = 0; field < layout.Count(); ++field) {
        if (!fields[std::size_t(field)])
            continue;
        fields_.push_back(field);
        columns_[std::size_t(field)] = short(fields_.size());
        sql += ',' + QuotedName(layout.At(field).name);
    }
    sql += " FROM " + QuotedName(layout.GetTable()) + " WHERE " + condition;
    statement_ = Statement(engine, sql);
}
