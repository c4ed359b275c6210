// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/KeptStatements.h"
#include "platform/data/RowQuery.h"

// Field values of one row as the album holds them: after any change by this program none count as
// loaded.
class LoadedRow
{
public:
    // Both must outlive it.
    LoadedRow(const Database& database, const TableLayout& layout);

    // Turns to another row, or to the same one again, with nothing loaded.
    void Begin(qint64 row)
    {
        row_ = row;
        isLoaded_ = false;
    }
    // Loads the fields that the query, which is on the row, selects. Throws DatabaseError; then
    // nothing is loaded.
    void Take(const RowQuery& query);

    bool IsLoaded(int field) const { return IsFresh() && loaded_[std::size_t(field)]; }
    // Loads the field, and reloads the others so that all are from the same moment. Throws
    // DatabaseError RecordDeleted when the row is gone.
    void Load(int field);
    // The value of a loaded field; valid until another is loaded.
    const FieldValue& At(int field) const { return values_[std::size_t(field)]; }

private:
    bool IsFresh() const { return isLoaded_ && changes_ == database_.ChangeCount(); }

    const Database& database_;
    const TableLayout& layout_;
    qint64 row_ = 0;        // the engine's row number
    bool isLoaded_ = false; // loaded_ applies to this row
    int changes_ = 0;       // the database's change count when it was loaded
    FieldMarks loaded_;
    std::vector<FieldValue> values_; // by field
    KeptStatements<FieldMarks, RowQuery> queries_;
};
