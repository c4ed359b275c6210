// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/KeptStatements.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <optional>
#include <vector>

// Unwritten values for one row, either an existing one or a new one. Holds none while closed.
class EditBuffer
{
public:
    // Both must outlive it.
    EditBuffer(const Database& database, const TableLayout& layout);

    bool IsOpen() const { return state_ != State::Closed; }

    // Drops what an open buffer holds. row is the engine's row number.
    void OpenForRow(qint64 row);
    // The new row gets its identifier at once. Throws DatabaseError.
    void OpenForNewRow();
    void Close();

    // Throws UpdateWithoutEdit when closed, TypeMismatch.
    void Set(int field, FieldValue value);
    // The value in the buffer; nullptr when the row's own value counts. In a new row an unset field
    // is Null, and gets the table's default when written.
    const FieldValue* Find(int field) const;

    // Writes the values and closes. Throws UpdateWithoutEdit when closed, RecordDeleted when its
    // row is gone, DuplicateKey and the like; the buffer then stays open.
    void Write();

private:
    enum class State { Closed, Row, NewRow };

    void RequireOpen() const;
    void UpdateRow();
    void InsertRow();
    // Statements that write the fields in the buffer.
    QByteArray UpdateSql() const;
    QByteArray InsertSql() const;
    std::shared_ptr<Statement> WriteStatement();

    const Database& database_;
    const TableLayout& layout_;
    State state_ = State::Closed;
    qint64 row_ = 0;
    std::vector<std::pair<int, FieldValue>> values_; // in the order in which they were set
    KeptStatements<QByteArray, Statement> statements_;
};
