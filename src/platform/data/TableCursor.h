// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/KeptStatements.h"
#include "platform/data/RowQuery.h"

class LoadedRow;

// A place among the rows of one table: on a row, where a row was before it was deleted, or past the
// last. It changes only when a row was found to stand on, or when it is told to. A statement stays
// open from row to row only while a walk lives.
class TableCursor
{
public:
    enum class Place { Row, DeletedRow, End };

    // At the end. Both must outlive it.
    TableCursor(const Database& database, const TableLayout& layout);

    Place GetPlace() const { return place_; }
    // The engine's row number, also that of a row just deleted.
    qint64 GetRow() const { return row_; }
    // Throw NoCurrentRecord at the end, the latter also RecordDeleted.
    void RequirePlace() const;
    void RequireRow() const;

    // Goes to the first row, or to the next one after its place, that meets the filter; false, and
    // nothing moved, when there is none. The fields that the filter's query selects of a row found
    // outside a walk are loaded into it at once. Throws DatabaseError.
    bool GoToFirst(const QString& filter, LoadedRow& found);
    bool GoToNext(const QString& filter, LoadedRow& found);
    void GoToEnd() { place_ = Place::End; }
    void RowWasDeleted() { place_ = Place::DeletedRow; }

    void BeginWalk() { ++walks_; }
    void EndWalk();

    // Rows found by the same filter later on bring this field with them.
    void Want(int field);
    // Column of the open statement that holds the current row's field as the album has it; 0 when
    // there is none.
    int OpenColumn(int field) const
    {
        return open_ && IsFresh() ? query_->rows.ColumnOf(field) : 0;
    }
    const Statement& OpenStatement() const { return query_->rows.GetStatement(); }

private:
    // A filter's shape with its statement, which selects the fields that were asked for on rows
    // found by it so far: most routines ask for the same one or two every time.
    struct Query
    {
        QByteArray condition;
        RowQuery rows;
        FieldMarks wanted;      // fields to select
        bool isOutdated = true; // more is wanted than rows selects
    };

    bool GoTo(const QString& filter, qint64 after, LoadedRow& found);
    bool CanGoOn(const QString& filter) const;
    void Translate(const QString& filter);
    void Prepare();
    void AcceptRow(LoadedRow& found);
    void CloseStatement();
    bool IsFresh() const { return changes_ == database_.ChangeCount(); }

    const Database& database_;
    const TableLayout& layout_;

    Place place_ = Place::End;
    qint64 row_ = 0;

    QString filter_; // translated into query_ and values_
    bool isTranslated_ = false;
    std::shared_ptr<Query> query_;
    std::vector<FieldValue> values_;
    KeptStatements<QByteArray, Query> queries_;

    int walks_ = 0;
    bool open_ = false; // query_'s statement stands on the current row
    int changes_ = -1;  // the database's change count when the row was found
};
