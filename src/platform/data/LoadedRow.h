// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/KeptStatements.h"
#include "platform/data/RowQuery.h"

// Values of fields of one row. Those that are loaded are what the album holds: a row that this
// program changed since has none loaded.
class LoadedRow
{
public:
    // Both must outlive it.
    LoadedRow(const Database& database, const TableLayout& layout);

    // Goes over to another row, or anew to the same one: nothing of it is loaded.
    void Begin(qint64 row);
    // Loads what a query that stands on the row has of it. Throws DatabaseError, and then nothing
    // is loaded.
    void Take(const RowQuery& query);

    bool IsLoaded(int field) const { return IsFresh() && loaded_[std::size_t(field)]; }
    // Loads the field, and anew those that are loaded: they are of one moment. Throws DatabaseError
    // RecordDeleted when the row has gone.
    void Load(int field);
    // Of a field that is loaded; valid until another is.
    const FieldValue& At(int field) const { return values_[std::size_t(field)]; }

private:
    bool IsFresh() const { return isLoaded_ && changes_ == database_.ChangeCount(); }

    const Database& database_;
    const TableLayout& layout_;
    qint64 row_ = 0;        // the engine's row number
    bool isLoaded_ = false; // loaded_ speaks of this row
    int changes_ = 0;       // the database's change count when it was loaded
    FieldMarks loaded_;
    std::vector<FieldValue> values_; // by field
    KeptStatements<FieldMarks, RowQuery> queries_;
};
