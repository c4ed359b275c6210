// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/KeptStatements.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <optional>
#include <vector>

// Values for one row that are not written yet: for the row that it was opened for, or for a new
// one. While it is closed it holds none.
class EditBuffer
{
public:
    // Both must outlive it.
    EditBuffer(const Database& database, const TableLayout& layout);

    bool IsOpen() const { return state_ != State::Closed; }

    // What an open buffer holds is dropped. The row is the engine's row number.
    void OpenForRow(qint64 row);
    // The new row gets its identifier at once. Throws DatabaseError.
    void OpenForNewRow();
    void Close();

    // Throws UpdateWithoutEdit when it is closed, TypeMismatch.
    void Set(int field, FieldValue value);
    // A new row's field that was not set is Null here, and gets the table's default when written;
    // nullptr for what the row itself has to say.
    const FieldValue* Find(int field) const;

    // Writes the values and closes. Throws UpdateWithoutEdit when it is closed, RecordDeleted when
    // its row has gone, DuplicateKey and the like; it then stays open.
    void Write();

private:
    enum class State { Closed, Row, NewRow };

    void RequireOpen() const;
    void UpdateRow();
    void InsertRow();
    // Those that write the values of the fields in the buffer.
    QByteArray UpdateSql() const;
    QByteArray InsertSql() const;
    std::shared_ptr<Statement> WriteStatement();

    const Database& database_;
    const TableLayout& layout_;
    State state_ = State::Closed;
    qint64 row_ = 0;
    std::vector<std::pair<int, FieldValue>> values_; // by the order in which they were set
    KeptStatements<QByteArray, Statement> statements_;
};
