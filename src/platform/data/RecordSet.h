// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/FilterSql.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <QHash>

#include <bitset>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

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

    // While one lives, going from row to row keeps the engine's statement open, which is many times
    // faster than asking anew for each row. Make one in the routine that loops.
    class Walk
    {
    public:
        explicit Walk(RecordSet& set) : set_(set) { ++set_.walks_; }
        ~Walk() { set_.EndWalk(); }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;

    private:
        RecordSet& set_;
    };

    const std::shared_ptr<Database>& GetDatabase() const { return database_; }

    // The first row, or the next one after the current row, that meets the filter. When there is
    // none, NoMatch is true and the current row stays. An empty filter is met by every row.
    void FindFirst(const QString& filter);
    void FindNext(const QString& filter);
    bool NoMatch() const { return noMatch_; }

    // Past the last row there is no current row and AtEnd is true.
    void MoveFirst();
    void MoveNext(); // throws NoCurrentRecord at the end
    bool AtEnd() const { return place_ == Place::End; }

    bool IsEmpty();
    qint64 RecordCount(); // reads the whole table; ask IsEmpty where that is meant

    // Number of a field for the routines below, which take it in the place of its name in loops
    // that count. Throws NoSuchField.
    int FieldNumber(QStringView field) const;
    bool HasField(QStringView field) const { return layout_.Find(field) >= 0; }

    // Fields of the current row, or of the row being edited or added. Throw NoCurrentRecord,
    // RecordDeleted, InvalidUseOfNull.
    QString Text(int field);
    QString Text(QStringView field) { return Text(FieldNumber(field)); }
    qint32 Number(int field); // also throws Overflow, TypeMismatch
    qint32 Number(QStringView field) { return Number(FieldNumber(field)); }
    bool IsNull(int field);
    bool IsNull(QStringView field) { return IsNull(FieldNumber(field)); }
    // The text, or an empty one where the field is Null.
    QString TextOrEmpty(int field);
    QString TextOrEmpty(QStringView field) { return TextOrEmpty(FieldNumber(field)); }

    // Changes gather in a buffer until Update; going to another row drops them.
    void Edit();
    // A new row has its identifier at once; fields not set get the table's defaults.
    void AddNew();
    // Throw UpdateWithoutEdit, TypeMismatch.
    void Set(int field, const QString& text) { SetBuffered(field, text); }
    void Set(QStringView field, const QString& text) { SetBuffered(FieldNumber(field), text); }
    void Set(QStringView field, qint64 number) { SetBuffered(FieldNumber(field), number); }
    // Throws DuplicateKey, ReadOnly, DiskFull and the like; the buffer then stays. After a row was
    // added the current row is the one before AddNew.
    void Update();
    void CancelUpdate();
    // Afterwards there is no current row until the set is moved; FindNext and MoveNext go on from
    // where the row was.
    void Delete();

private:
    enum class Place { Row, DeletedRow, End };
    using FieldMarks = std::bitset<TableLayout::mostFields>;

    // A filter's shape with its statement, which selects the fields that were asked for on rows
    // found by it so far: most routines ask for the same one or two every time.
    struct Query
    {
        QByteArray condition;
        Statement statement;
        FieldMarks wanted;          // fields to select
        FieldMarks selected;        // fields that the statement selects
        bool isBehind = true;       // more is wanted than selected
        std::vector<short> columns; // result column of each field, -1 for none
    };

    struct Buffer
    {
        bool adding = false;
        std::vector<std::pair<int, FieldValue>> values;
    };

    bool Advance(const QString& filter, qint64 after);
    bool CanGoOn(const QString& filter) const;
    void Translate(const QString& filter);
    void PrepareQuery(Query& query);
    void AcceptRow();
    void EndWalk();
    void CloseStatement();

    bool IsFresh() const { return rowChanges_ == database_->ChangeCount(); }
    bool ReadsFromStatement(int field) const;
    const FieldValue& Value(int field);
    void LoadFields(const FieldMarks& fields);
    void RequireRow() const;
    const FieldValue* Buffered(int field) const;

    void SetBuffered(int field, FieldValue value);
    void UpdateEdited();
    void UpdateAdded();
    QByteArray UpdateSql() const;
    QByteArray InsertSql() const;
    // The statement that writes the buffer's fields, of which kind says what else makes it up.
    Statement& WriteStatement(char kind, QByteArray (RecordSet::*sql)() const);

    std::shared_ptr<Database> database_;
    TableLayout layout_;
    QByteArray table_; // quoted

    Place place_ = Place::End;
    bool noMatch_ = true;
    qint64 row_ = 0; // the engine's row number, also that of a row just deleted

    QString filter_; // translated into query_ and values_
    bool translated_ = false;
    std::shared_ptr<Query> query_; // that found the current row
    std::vector<FieldValue> values_;
    QHash<QByteArray, std::shared_ptr<Query>> queries_;

    int walks_ = 0;
    bool open_ = false;   // query_'s statement stands on the current row
    int rowChanges_ = -1; // the database's change count when the row was read

    std::vector<FieldValue> loaded_;
    bool isLoaded_ = false; // loadedFields_ speaks of the current row
    FieldMarks loadedFields_;
    std::unordered_map<FieldMarks, std::shared_ptr<Statement>> loads_;

    std::optional<Buffer> buffer_;
    QHash<QByteArray, std::shared_ptr<Statement>> writes_;
};
