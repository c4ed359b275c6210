// SPDX-License-Identifier: MIT
#include "platform/data/LoadedRow.h"

#include <QScopeGuard>

LoadedRow::LoadedRow(const Database& database, const TableLayout& layout)
    : database_(database), layout_(layout), values_(std::size_t(layout.Count()))
{
}

void LoadedRow::Take(const RowQuery& query)
{
    isLoaded_ = false; // also when memory runs out halfway
    int column = 0;
    for (const int field : query.Fields())
        values_[std::size_t(field)] = query.GetStatement().GetValue(++column);
    loaded_ = query.Marks();
    changes_ = database_.ChangeCount();
    isLoaded_ = true;
}

void LoadedRow::Load(int field)
{
    FieldMarks fields = IsFresh() ? loaded_ : FieldMarks();
    fields.set(std::size_t(field));
    const std::shared_ptr<RowQuery> query = queries_.Get(fields, [this, &fields] {
        return RowQuery(database_.GetEngine(), layout_, fields, "rowid=?1");
    });
    Statement& statement = query->GetStatement();
    statement.Bind(1, row_);
    if (!statement.Step())
        ThrowRecordDeleted();
    // Also when memory runs out: an open statement holds a lock and accepts no values.
    const auto reset = qScopeGuard([&statement] { statement.Reset(); });
    Take(*query);
}
