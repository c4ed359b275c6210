// SPDX-License-Identifier: MIT
#include "platform/data/ChangeTriggers.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

namespace {

constexpr char logTable[] = "undo_log";
constexpr char triggerPrefix[] = "undo_log_";

using ChangeKind = LoggedChange::Kind;

// "v0,v1,v2"
QByteArray ValueColumns(int count)
{
    QByteArrayList names;
    for (int i = 0; i < count; ++i)
        names += 'v' + QByteArray::number(i);
    return names.join(',');
}

int MostFields(const std::vector<TableLayout>& layouts)
{
    int most = 1;
    for (const TableLayout& layout : layouts)
        most = std::max(most, layout.Count());
    return most;
}

QByteArray AllFields(const TableLayout& layout, const QByteArray& before)
{
    QByteArray fields;
    for (int i = 0; i < layout.Count(); ++i)
        fields += ',' + before + QuotedName(layout.At(i).name);
    return fields;
}

// The entry's columns and values.
QByteArray EntrySql(const QByteArray& number, const QByteArray& row, const QByteArray& columns,
                    const QByteArray& values)
{
    return QByteArray("INSERT INTO ") + logTable + "(change,row" + columns + ") VALUES (" + number +
           ',' + row + values + ");";
}

// An update that moves a row to another number is found at the new one.
QByteArray TriggerSql(const TableLayout& layout, const LoggedChange& change, std::size_t place)
{
    const QByteArray number = QByteArray::number(qulonglong(place));
    const QByteArray table = " ON main." + QuotedName(layout.GetTable());
    const QByteArray create = QByteArray("CREATE TEMP TRIGGER ") + triggerPrefix + number;
    switch (change.kind) {
    case ChangeKind::Insert:
        return create + " AFTER INSERT" + table + " BEGIN " +
               EntrySql(number, "new.rowid", {}, {}) + " END";
    case ChangeKind::Delete:
        return create + " AFTER DELETE" + table + " BEGIN " +
               EntrySql(number, "old.rowid", ',' + ValueColumns(layout.Count()),
                        AllFields(layout, "old.")) +
               " END";
    case ChangeKind::Update:
        break;
    }
    const QByteArray field = QuotedName(layout.At(change.field).name);
    // Values are the same only with the same letters, whatever the field compares by.
    return create + " AFTER UPDATE OF " + field + table + " WHEN old." + field + " IS NOT new." +
           field + " COLLATE BINARY BEGIN " +
           EntrySql(number, "new.rowid", ",v0", ",old." + field) + " END";
}

} // namespace

std::vector<LoggedChange> LoggedChanges(const std::vector<TableLayout>& layouts,
                                        const QStringList& leftOut)
{
    std::vector<LoggedChange> changes;
    for (std::size_t table = 0; table < layouts.size(); ++table) {
        changes.push_back({table, ChangeKind::Insert, 0});
        changes.push_back({table, ChangeKind::Delete, 0});
        for (int field = 0; field < layouts[table].Count(); ++field) {
            if (!leftOut.contains(layouts[table].At(field).text))
                changes.push_back({table, ChangeKind::Update, field});
        }
    }
    return changes;
}

QByteArrayList ChangeLogSql(const std::vector<TableLayout>& layouts,
                            const std::vector<LoggedChange>& changes)
{
    // The settings count only before the first temporary table. Never in a file: the album may have
    // a password. Each commit looks at every page of the log, so they are large, but small enough
    // that copying one does not slow a statement.
    QByteArrayList sql{
        "PRAGMA temp_store=MEMORY", "PRAGMA temp.page_size=16384", "PRAGMA temp.auto_vacuum=1",
        QByteArray("CREATE TEMP TABLE ") + logTable + " (seq INTEGER PRIMARY KEY, change, row, " +
            ValueColumns(MostFields(layouts)) + ')'};
    for (std::size_t i = 0; i < changes.size(); ++i)
        sql += TriggerSql(layouts[changes[i].table], changes[i], i);
    return sql;
}

// OR ROLLBACK spares the engine a copy of the pages that the statement changes; a failure ends the
// transaction in any case.
QByteArray ReverseSql(const TableLayout& layout, const LoggedChange& change)
{
    const QByteArray table = QuotedName(layout.GetTable());
    switch (change.kind) {
    case ChangeKind::Insert:
        return "DELETE FROM " + table + " WHERE rowid=?1";
    case ChangeKind::Delete: {
        QByteArray parameters = "?1";
        for (int i = 0; i < layout.Count(); ++i)
            parameters += ",?" + QByteArray::number(i + 2);
        return "INSERT OR ROLLBACK INTO " + table + "(rowid" + AllFields(layout, {}) +
               ") VALUES (" + parameters + ')';
    }
    case ChangeKind::Update:
        break;
    }
    return "UPDATE OR ROLLBACK " + table + " SET " + QuotedName(layout.At(change.field).name) +
           "=?2 WHERE rowid=?1";
}

bool IsLogging(int action, const char* object, const char* schema, const char* source)
{
    if (!QByteArray(source).startsWith(triggerPrefix))
        return false;
    return action == SQLITE_READ || (action == SQLITE_INSERT && qstrcmp(object, logTable) == 0 &&
                                     qstrcmp(schema, "temp") == 0);
}
