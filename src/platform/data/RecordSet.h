// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/EditBuffer.h"
#include "platform/data/LoadedRow.h"
#include "platform/data/TableCursor.h"

// All rows of one table in the order in which they were added, with one current row. Filters are
// written in the language of FilterText.h. Field names are matched in any letter case.
//
// No statement stays open and no lock is held between calls, except while a Walk lives. Every
// member throws DatabaseError when the engine fails.
class RecordSet
{
public:
    // Opens on the first row. Throws NoSuchTable.
    RecordSet(std::shared_ptr<Database> database, const QString& table);
    RecordSet(const RecordSet&) = delete;
    RecordSet& operator=(const RecordSet&) = delete;

    // While one lives, moving from row to row keeps the engine's statement open, which is many
    // times faster than a new query for each row. Create one in the routine that loops.
    class Walk
    {
    public:
        explicit Walk(RecordSet& set) : set_(set) { set_.cursor_.BeginWalk(); }
        ~Walk() { set_.cursor_.EndWalk(); }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;

    private:
        RecordSet& set_;
    };

    const std::shared_ptr<Database>& GetDatabase() const { return database_; }

    // Go to the first row, or to the next after the current one, that meets the filter. When there
    // is none, NoMatch is true and the current row stays. Every row meets an empty filter.
    void FindFirst(const QString& filter);
    void FindNext(const QString& filter);
    bool NoMatch() const { return noMatch_; }

    // Past the last row there is no current row and AtEnd is true.
    void MoveFirst();
    void MoveNext(); // throws NoCurrentRecord at the end
    bool AtEnd() const { return cursor_.GetPlace() == TableCursor::Place::End; }

    bool IsEmpty();
    qint64 RecordCount(); // reads the whole table; use IsEmpty where that is enough

    // Number of a field, which the routines below take instead of its name in loops where time
    // matters. Throws NoSuchField.
    int FieldNumber(QStringView field) const;
    bool HasField(QStringView field) const { return layout_.Find(field) >= 0; }

    // Fields of the current row, or of the row being edited or added. Throw NoCurrentRecord,
    // RecordDeleted, InvalidUseOfNull.
    QString Text(int field);
    QString Text(QStringView field) { return Text(FieldNumber(field)); }
    // The text as the engine has it, while a walk's statement holds it; else empty. Valid until the
    // set moves.
    std::string_view OpenUtf8(int field) const;
    qint32 Number(int field); // also throws Overflow, TypeMismatch
    qint32 Number(QStringView field) { return Number(FieldNumber(field)); }
    bool IsNull(int field);
    bool IsNull(QStringView field) { return IsNull(FieldNumber(field)); }
    // The text, or an empty one where the field is Null.
    QString TextOrEmpty(int field);
    QString TextOrEmpty(QStringView field) { return TextOrEmpty(FieldNumber(field)); }

    // Changes are buffered until Update; moving to another row drops them.
    void Edit();
    // A new row has its identifier at once; fields not set get the table's defaults.
    void AddNew();
    // Throw UpdateWithoutEdit, TypeMismatch.
    void Set(int field, const QString& text) { buffer_.Set(field, text); }
    void Set(QStringView field, const QString& text) { buffer_.Set(FieldNumber(field), text); }
    void Set(QStringView field, qint64 number) { buffer_.Set(FieldNumber(field), number); }
    // Throws DuplicateKey, ReadOnly, DiskFull and the like; the buffer then stays. After an added
    // row the current row is the one from before AddNew.
    void Update();
    void CancelUpdate();
    // Afterwards there is no current row until the set is moved; FindNext and MoveNext continue
    // from where the row was.
    void Delete();

private:
    const FieldValue& Value(int field);
    // Column of the walk's statement that holds the field; 0 when it must be loaded.
    int OpenColumn(int field) const { return buffer_.IsOpen() ? 0 : cursor_.OpenColumn(field); }

    std::shared_ptr<Database> database_;
    TableLayout layout_;
    QByteArray table_; // quoted
    TableCursor cursor_;
    LoadedRow row_; // the row that cursor_ is on
    EditBuffer buffer_;
    bool noMatch_ = true;
};
