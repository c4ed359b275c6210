// SPDX-License-Identifier: MIT
#include "platform/data/ChangeLog.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

namespace {

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

// The one that the statement returns; 0 for none.
qint64 NumberOf(Statement& statement)
{
    const qint64 number = statement.Step() ? statement.GetInteger(0) : 0;
    statement.Reset();
    return number;
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
    pages_ = Statement(engine_, "PRAGMA temp.page_count");
    Statement size(engine_, "PRAGMA temp.page_size");
    pageSize_ = NumberOf(size);
}

qint64 ChangeLog::LastEntry() const
{
    return NumberOf(last_);
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
    Statement each(EngineOf(entries),
                   "SELECT * FROM temp.undo_log WHERE seq>?1 AND seq<=?2 ORDER BY seq DESC");
    each.Bind(1, entries.after);
    each.Bind(2, entries.last);
    int done = 0;
    while (each.Step()) {
        TakeBackEntry(each);
        if (!progress(++done))
            return std::nullopt;
    }
    Range made{before, LastEntry()};
    Forget(entries);
    return made;
}

sqlite3* ChangeLog::EngineOf(const Range& entries) const
{
    return entries.shelf ? entries.shelf->GetEngine() : engine_;
}

void ChangeLog::Run(Statement& deletion)
{
    const int before = sqlite3_total_changes(engine_);
    deletion.Run();
    forgotten_ += sqlite3_total_changes(engine_) - before;
}

void ChangeLog::Forget(const Range& entries)
{
    if (entries.shelf)
        return;
    Statement deletion(engine_, "DELETE FROM temp.undo_log WHERE seq>?1 AND seq<=?2");
    deletion.Bind(1, entries.after);
    deletion.Bind(2, entries.last);
    Run(deletion);
}

void ChangeLog::ForgetAll()
{
    Statement deletion(engine_, "DELETE FROM temp.undo_log");
    Run(deletion);
}

std::shared_ptr<const LogShelf> ChangeLog::PutAside()
{
    auto shelf = std::make_shared<const LogShelf>(engine_);
    ForgetAll();
    std::erase_if(shelves_, [](const auto& each) { return each.expired(); });
    shelves_.push_back(shelf);
    return shelf;
}

qint64 ChangeLog::GetBytes() const
{
    qint64 bytes = NumberOf(pages_) * pageSize_;
    for (const auto& each : shelves_) {
        if (const auto shelf = each.lock())
            bytes += shelf->GetBytes();
    }
    return bytes;
}

int ChangeLog::CountRows(const QString& table, const Range& entries) const
{
    QByteArrayList numbers;
    for (std::size_t i = 0; i < changes_.size(); ++i) {
        if (layouts_[changes_[i].table].GetTable() == table.toUtf8())
            numbers += QByteArray::number(qulonglong(i));
    }
    Statement count(EngineOf(entries),
                    "SELECT count(DISTINCT row) FROM temp.undo_log WHERE seq>?1 AND seq<=?2 "
                    "AND change IN (" +
                        numbers.join(',') + ')');
    count.Bind(1, entries.after);
    count.Bind(2, entries.last);
    return int(NumberOf(count));
}

qint64 ChangeLog::OnlyAddedRow(const QString& table, const Range& entries) const
{
    const auto insert =
        std::find_if(changes_.begin(), changes_.end(), [&](const LoggedChange& change) {
            return change.kind == LoggedChange::Kind::Insert &&
                   layouts_[change.table].GetTable() == table.toUtf8();
        });
    Statement row(engine_, "SELECT min(row) FROM temp.undo_log WHERE seq>?1 AND seq<=?2 "
                           "AND change=?3 GROUP BY change HAVING min(row)=max(row)");
    row.Bind(1, entries.after);
    row.Bind(2, entries.last);
    row.Bind(3, qint64(insert - changes_.begin()));
    return NumberOf(row);
}
