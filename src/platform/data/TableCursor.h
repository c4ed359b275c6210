// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/KeptStatements.h"
#include "platform/data/RowQuery.h"

class LoadedRow;

// A cursor in one table: on a row, where a deleted row was, or past the last. It moves only when it
// finds a row, or is told to. A statement stays open from row to row only while a walk lives.
class TableCursor
{
public:
    enum class Place { Row, DeletedRow, End };

    // Starts at the end. Both must outlive it.
    TableCursor(const Database& database, const TableLayout& layout);

    Place GetPlace() const { return place_; }
    // The engine's row number, also that of a row just deleted.
    qint64 GetRow() const { return row_; }
    // Throw NoCurrentRecord at the end; RequireRow also RecordDeleted.
    void RequirePlace() const;
    void RequireRow() const;

    // Goes to the first row, or to the next one, that meets the filter; false, without moving, when
    // there is none. Outside a walk the fields that the filter's query selects are loaded into
    // found at once. Throws DatabaseError.
    bool GoToFirst(const QString& filter, LoadedRow& found);
    bool GoToNext(const QString& filter, LoadedRow& found);
    void GoToEnd() { place_ = Place::End; }
    void RowWasDeleted() { place_ = Place::DeletedRow; }

    void BeginWalk() { ++walks_; }
    void EndWalk();

    // Rows that the same filter finds from now on include this field.
    void Want(int field);
    // Column of the open statement that holds the current row's field as the album has it; 0 when
    // there is none.
    int OpenColumn(int field) const
    {
        return open_ && IsFresh() ? query_->rows.ColumnOf(field) : 0;
    }
    const Statement& OpenStatement() const { return query_->rows.GetStatement(); }

private:
    // A filter's condition with its statement, which selects the fields wanted so far on rows that
    // it found: most routines want the same one or two every time.
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
    bool open_ = false; // query_'s statement is on the current row
    int changes_ = -1;  // the database's change count when the row was found
};
