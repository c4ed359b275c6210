// SPDX-License-Identifier: MIT
#include "platform/data/TableCursor.h"

#include "platform/data/FilterSql.h"
#include "platform/data/LoadedRow.h"

#include <QScopeGuard>

#include <limits>

namespace {

constexpr qint64 beforeFirst = std::numeric_limits<qint64>::min();

} // namespace

TableCursor::TableCursor(const Database& database, const TableLayout& layout)
    : database_(database), layout_(layout)
{
}

void TableCursor::RequirePlace() const
{
    if (place_ == Place::End) {
        throw DatabaseError(DatabaseError::NoCurrentRecord,
                            DatabaseError::tr("There is no current record."));
    }
}

void TableCursor::RequireRow() const
{
    RequirePlace();
    if (place_ == Place::DeletedRow)
        ThrowRecordDeleted();
}

bool TableCursor::GoToFirst(const QString& filter, LoadedRow& found)
{
    CloseStatement();
    return GoTo(filter, beforeFirst, found);
}

bool TableCursor::GoToNext(const QString& filter, LoadedRow& found)
{
    return place_ != Place::End && GoTo(filter, row_, found);
}

bool TableCursor::GoTo(const QString& filter, qint64 after, LoadedRow& found)
{
    if (!CanGoOn(filter)) {
        CloseStatement();
        Translate(filter);
        Prepare();
        Statement& statement = query_->rows.GetStatement();
        statement.Bind(1, after);
        for (std::size_t i = 0; i < values_.size(); ++i)
            statement.Bind(int(i) + 2, values_[i]);
    }
    open_ = false; // a statement that finds no row, or fails, is reset
    if (!query_->rows.GetStatement().Step())
        return false;
    AcceptRow(found);
    return true;
}

// A row that this program changed may now meet the filter or no longer meet it, and a newly wanted
// field is not in the open statement: in both cases a new run starts after the current row.
bool TableCursor::CanGoOn(const QString& filter) const
{
    return open_ && IsFresh() && !query_->isOutdated && filter == filter_;
}

void TableCursor::Translate(const QString& filter)
{
    if (isTranslated_ && filter == filter_)
        return;
    isTranslated_ = false;
    FilterSql sql = TranslateFilter(filter, layout_);
    query_ = queries_.Get(sql.condition, [&sql] {
        Query query;
        query.condition = sql.condition;
        return query;
    });
    values_ = std::move(sql.values);
    filter_ = filter;
    isTranslated_ = true;
}

// Always ordered by row number: an index would return rows in its own order.
void TableCursor::Prepare()
{
    if (!query_->isOutdated)
        return;
    QByteArray condition = "rowid>?1";
    if (!query_->condition.isEmpty())
        condition += " AND (" + query_->condition + ')';
    query_->rows =
        RowQuery(database_.GetEngine(), layout_, query_->wanted, condition + " ORDER BY rowid");
    query_->isOutdated = false;
}

void TableCursor::AcceptRow(LoadedRow& found)
{
    Statement& statement = query_->rows.GetStatement();
    row_ = statement.GetInteger(0);
    place_ = Place::Row;
    changes_ = database_.ChangeCount();
    found.Begin(row_);
    if (walks_ > 0) {
        open_ = true;
        return;
    }
    // Also when memory runs out: an open statement holds a lock and accepts no values.
    const auto reset = qScopeGuard([&statement] { statement.Reset(); });
    found.Take(query_->rows);
}

void TableCursor::EndWalk()
{
    if (--walks_ == 0)
        CloseStatement();
}

// The fields of the current row are lost with the statement; they are loaded when needed.
void TableCursor::CloseStatement()
{
    if (open_)
        query_->rows.GetStatement().Reset();
    open_ = false;
}

void TableCursor::Want(int field)
{
    query_->isOutdated = query_->isOutdated || !query_->wanted[std::size_t(field)];
    query_->wanted.set(std::size_t(field));
}
