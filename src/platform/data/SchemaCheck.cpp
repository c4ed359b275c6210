// SPDX-License-Identifier: MIT
#include "platform/data/SchemaCheck.h"

#include "platform/data/SchemaText.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <sqlcipher/sqlite3.h>

#include <QScopeGuard>
#include <QSet>

#include <optional>
#include <string_view>

namespace {

[[noreturn]] void Refuse(const QByteArray& name)
{
    throw DatabaseError(
        DatabaseError::NotADatabase,
        DatabaseError::tr("This file is not an album: it holds '%1', which no album has.")
            .arg(QString::fromUtf8(name)));
}

[[noreturn]] void FailDamaged()
{
    throw DatabaseError(DatabaseError::Damaged, DatabaseError::tr("The album file is damaged."));
}

QByteArray TextAt(const Statement& statement, int column)
{
    const std::string_view text = statement.GetUtf8(column);
    return {text.data(), qsizetype(text.size())};
}

qint64 PageCount(sqlite3* engine)
{
    Statement statement(engine, "PRAGMA page_count");
    return statement.Step() ? statement.GetInteger(0) : 0;
}

// An index that keeps a key unique has no definition.
bool IsKnownObject(const QByteArray& type, const QByteArray& sql)
{
    return (type == "table" && IsPlainTable(sql)) ||
           (type == "index" && (sql.isEmpty() || IsPlainIndex(sql)));
}

struct SchemaWatch
{
    sqlite3* engine;
    int definitions = 0;
    std::optional<QByteArray> refused = {}; // the name of the first
};

std::optional<QByteArray> TextOf(sqlite3_stmt* row, const char* column)
{
    for (int i = 0; i < sqlite3_column_count(row); ++i) {
        if (qstricmp(sqlite3_column_name(row, i), column) != 0)
            continue;
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, i));
        return QByteArray(text, text ? sqlite3_column_bytes(row, i) : 0);
    }
    return std::nullopt;
}

// The engine reports each row of the schema before it parses the definition in it. Its parser
// checks for interruption at the first blank, before anything that can do harm.
int LookAtRow(unsigned, void* context, void* row, void*)
{
    auto& watch = *static_cast<SchemaWatch*>(context);
    auto* statement = static_cast<sqlite3_stmt*>(row);
    const std::optional<QByteArray> sql = TextOf(statement, "sql");
    if (!sql) // a row of the statistics that the engine reads afterwards
        return 0;
    const bool isPlain = sql->isEmpty() || IsPlainTable(*sql) || IsPlainIndex(*sql);
    if (isPlain && ++watch.definitions <= maxSchemaObjects)
        return 0;
    if (!watch.refused)
        watch.refused = TextOf(statement, "name").value_or(QByteArray());
    sqlite3_interrupt(watch.engine);
    return 0;
}

// Makes the engine read the schema, which it keeps until the file changes.
void LoadSchema(sqlite3* engine)
{
    SchemaWatch watch{engine};
    sqlite3_trace_v2(engine, SQLITE_TRACE_ROW, LookAtRow, &watch);
    const auto end = qScopeGuard([engine] { sqlite3_trace_v2(engine, 0, nullptr, nullptr); });
    try {
        const Statement any(engine, "SELECT 1 FROM sqlite_master");
    } catch (const DatabaseError&) {
        if (!watch.refused)
            throw;
    }
    if (watch.refused)
        Refuse(*watch.refused);
}

bool IsKnownCollation(const char* name)
{
    for (const char* known : {"BINARY", "NOCASE", "RTRIM"}) {
        if (!name || qstricmp(name, known) == 0)
            return true;
    }
    return false;
}

const char* CollationOf(sqlite3* engine, const QByteArray& table, const QByteArray& column)
{
    const char* collation = nullptr;
    const int code =
        sqlite3_table_column_metadata(engine, nullptr, table.constData(), column.constData(),
                                      nullptr, &collation, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        ThrowEngineError(engine, code);
    return collation;
}

// If the engine does not know a table's name, the table's definition gives another one.
void CheckColumns(sqlite3* engine, const QByteArray& table)
{
    bool isKnown = false;
    Statement columns(engine, "PRAGMA table_info(" + QuotedName(table) + ')');
    for (; columns.Step(); isKnown = true) {
        if (!IsKnownCollation(CollationOf(engine, table, TextAt(columns, 1))))
            Refuse(table);
    }
    if (!isKnown)
        FailDamaged();
}

void CheckIndexes(sqlite3* engine, const QByteArray& table)
{
    constexpr int expression = -2; // instead of a column's number
    Statement indexes(engine, "PRAGMA index_list(" + QuotedName(table) + ')');
    while (indexes.Step()) {
        const QByteArray name = TextAt(indexes, 1);
        Statement columns(engine, "PRAGMA index_xinfo(" + QuotedName(name) + ')');
        while (columns.Step()) {
            if (columns.GetInteger(1) == expression ||
                !IsKnownCollation(TextAt(columns, 4).constData()))
                Refuse(name);
        }
    }
}

// The tables' names. Every object must have a name and a root page of its own.
QList<QByteArray> ReadTables(sqlite3* engine)
{
    const qint64 pages = PageCount(engine);
    QSet<qint64> roots;
    QList<QByteArray> tables;
    // The engine's own table under all its names; no definition may claim one.
    QSet<QByteArray> names{"sqlite_master", "sqlite_schema", "sqlite_temp_master",
                           "sqlite_temp_schema"};
    Statement objects(engine, "SELECT type, name, sql, rootpage FROM sqlite_master");
    while (objects.Step()) {
        const QByteArray type = TextAt(objects, 0);
        const QByteArray name = TextAt(objects, 1);
        const qint64 root = objects.GetInteger(3);
        if (!IsKnownObject(type, TextAt(objects, 2)))
            Refuse(name);
        if (root < 1 || root > pages || roots.contains(root) || names.contains(name.toLower()))
            FailDamaged();
        roots.insert(root);
        names.insert(name.toLower());
        if (type == "table")
            tables += name;
    }
    return tables;
}

} // namespace

// Tables are queried by the names in the file. As each name occurs once and is known to the engine,
// no table is missed even if the file names its tables wrongly.
void CheckSchema(sqlite3* engine)
{
    LoadSchema(engine);
    for (const QByteArray& table : ReadTables(engine)) {
        CheckColumns(engine, table);
        CheckIndexes(engine, table);
    }
}
