// SPDX-License-Identifier: MIT
#include "platform/data/ChangeLog.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>
#include <limits>

namespace {

constexpr ChangeLog::Range everything{0, std::numeric_limits<qint64>::max()};

bool HasTable(sqlite3* engine, const QString& table)
{
    return sqlite3_table_column_metadata(engine, "main", table.toUtf8().constData(), nullptr,
                                         nullptr, nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::vector<TableLayout> LayoutsOf(sqlite3* engine, const QStringList& tables)
{
    std::vector<TableLayout> layouts;
    for (const QString& table : tables) {
        if (!HasTable(engine, table))
            continue;
        layouts.emplace_back(engine, table);
        if (layouts.back().Count() > ChangeLog::maxFields)
            throw DatabaseError(DatabaseError::TooComplex,
                                DatabaseError::tr("Table '%1' has too many fields.").arg(table));
    }
    return layouts;
}

} // namespace

ChangeLog::ChangeLog(sqlite3* engine, const QStringList& tables, const QStringList& leftOut)
    : engine_(engine),
      layouts_(LayoutsOf(engine, tables)),
      changes_(LoggedChanges(layouts_, leftOut)),
      reversals_(changes_.size())
{
    for (const QByteArray& sql : ChangeLogSql(layouts_, changes_))
        Statement(engine_, sql).Run();
    last_ = Statement(engine_, "SELECT max(seq) FROM temp.undo_log");
}

qint64 ChangeLog::LastEntry() const
{
    last_.Step();
    const qint64 last = last_.GetInteger(0);
    last_.Reset();
    return last;
}

Statement& ChangeLog::Reversal(std::size_t change)
{
    Statement& statement = reversals_[change];
    if (!statement.IsPrepared()) {
        const LoggedChange& logged = changes_[change];
        statement = Statement(engine_, ReverseSql(layouts_[logged.table], logged));
    }
    return statement;
}

void ChangeLog::TakeBackEntry(const Statement& entry)
{
    constexpr int firstValue = 3;
    const auto change = std::size_t(entry.GetInteger(1));
    const LoggedChange& logged = changes_[change];
    Statement& reversal = Reversal(change);
    reversal.Bind(1, entry.GetInteger(2));
    if (logged.kind == LoggedChange::Kind::Update)
        reversal.BindColumn(2, entry, firstValue);
    for (int i = 0; logged.kind == LoggedChange::Kind::Delete && i < layouts_[logged.table].Count();
         ++i)
        reversal.BindColumn(i + 2, entry, firstValue + i);
    reversal.Run();
}

std::optional<ChangeLog::Range> ChangeLog::TakeBack(const Range& entries, const Progress& progress)
{
    const qint64 before = LastEntry();
    // The columns are change, row and the values, after the number.
    Statement each(engine_,
                   "SELECT * FROM temp.undo_log WHERE seq>?1 AND seq<=?2 ORDER BY seq DESC");
    each.Bind(1, entries.after);
    each.Bind(2, entries.last);
    int done = 0;
    while (each.Step()) {
        TakeBackEntry(each);
        if (!progress(++done))
            return std::nullopt;
    }
    const Range made{before, LastEntry()};
    Forget(entries);
    return made;
}

void ChangeLog::Run(const QByteArray& sql, const Range& entries)
{
    Statement statement(engine_, sql);
    statement.Bind(1, entries.after);
    statement.Bind(2, entries.last);
    const int before = sqlite3_total_changes(engine_);
    statement.Run();
    forgotten_ += sqlite3_total_changes(engine_) - before;
}

void ChangeLog::Forget(const Range& entries)
{
    Run("DELETE FROM temp.undo_log WHERE seq>?1 AND seq<=?2", entries);
}

void ChangeLog::ForgetAll()
{
    Forget(everything);
}

qint64 ChangeLog::GetNumber(const QByteArray& sql, const Range& entries) const
{
    Statement statement(engine_, sql);
    statement.Bind(1, entries.after);
    statement.Bind(2, entries.last);
    return statement.Step() ? statement.GetInteger(0) : 0;
}

qint64 ChangeLog::GetBytes() const
{
    Statement pages(engine_, "PRAGMA temp.page_count");
    Statement size(engine_, "PRAGMA temp.page_size");
    return pages.Step() && size.Step() ? pages.GetInteger(0) * size.GetInteger(0) : 0;
}

int ChangeLog::CountRows(const QString& table, const Range& entries) const
{
    QByteArrayList numbers;
    for (std::size_t i = 0; i < changes_.size(); ++i) {
        if (layouts_[changes_[i].table].GetTable() == table.toUtf8())
            numbers += QByteArray::number(qulonglong(i));
    }
    return int(GetNumber("SELECT count(DISTINCT row) FROM temp.undo_log WHERE seq>?1 AND seq<=?2 "
                         "AND change IN (" +
                             numbers.join(',') + ')',
                         entries));
}

int ChangeLog::CountEntries(const Range& entries) const
{
    return int(GetNumber("SELECT count(*) FROM temp.undo_log WHERE seq>?1 AND seq<=?2", entries));
}
