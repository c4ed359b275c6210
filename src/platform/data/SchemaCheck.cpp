// SPDX-License-Identifier: MIT
#include "platform/data/SchemaCheck.h"

#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <sqlcipher/sqlite3.h>

#include <QRegularExpression>
#include <QSet>

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

// The end of what begins here and is neither word nor sign: a quoted name or text, or a comment.
std::size_t EndOfQuoted(std::string_view sql)
{
    std::string_view end;
    if (sql.starts_with("--"))
        end = "\n";
    else if (sql.starts_with("/*"))
        end = "*/";
    else if (sql.front() == '[')
        end = "]";
    else if (std::string_view("'\"`").find(sql.front()) != std::string_view::npos)
        end = sql.substr(0, 1);
    else
        return 0;
    const std::size_t found = sql.find(end, sql.front() == '/' ? 2 : 1);
    return found == std::string_view::npos ? sql.size() : found + end.size();
}

// The definition without its quoted names and texts and its comments.
QString Bare(const QByteArray& definition)
{
    QByteArray bare;
    std::string_view sql(definition.constData(), std::size_t(definition.size()));
    while (!sql.empty()) {
        const std::size_t quoted = EndOfQuoted(sql);
        bare += quoted > 0 ? ' ' : sql.front();
        sql.remove_prefix(quoted > 0 ? quoted : 1);
    }
    return QString::fromUtf8(bare);
}

// The engine writes a definition back with exactly this beginning, whatever the author typed. It
// does not tell of checks, and older ones do not know computed columns; both words cannot be names
// unless they are quoted.
bool IsPlainTable(const QByteArray& type, const QByteArray& sql)
{
    static const QRegularExpression computing(QStringLiteral(R"(\b(CHECK|AS)\b)"),
                                              QRegularExpression::CaseInsensitiveOption |
                                                  QRegularExpression::UseUnicodePropertiesOption);
    return type == "table" && sql.startsWith("CREATE TABLE ") && !Bare(sql).contains(computing);
}

bool IsIndex(const QByteArray& type, const QByteArray& sql)
{
    return type == "index" && (sql.isEmpty() || sql.startsWith("CREATE INDEX ") ||
                               sql.startsWith("CREATE UNIQUE INDEX "));
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

// A name that the engine does not know tells of an object that is defined under another one.
void CheckColumns(sqlite3* engine, const QByteArray& table)
{
    bool isKnown = false;
    Statement columns(engine, "PRAGMA table_info(" + QuotedName(table) + ')');
    for (; columns.Step(); isKnown = true) {
        const bool callsFunction = Bare(TextAt(columns, 4)).contains(u'('); // as a default value
        if (callsFunction || !IsKnownCollation(CollationOf(engine, table, TextAt(columns, 1))))
            Refuse(table);
    }
    if (!isKnown)
        FailDamaged();
}

void CheckIndexes(sqlite3* engine, const QByteArray& table)
{
    constexpr int expression = -2; // in the place of a column's number
    Statement indexes(engine, "PRAGMA index_list(" + QuotedName(table) + ')');
    while (indexes.Step()) {
        const QByteArray name = TextAt(indexes, 1);
        if (indexes.GetInteger(4) != 0) // partial
            Refuse(name);
        Statement columns(engine, "PRAGMA index_xinfo(" + QuotedName(name) + ')');
        while (columns.Step()) {
            if (columns.GetInteger(1) == expression ||
                !IsKnownCollation(TextAt(columns, 4).constData()))
                Refuse(name);
        }
    }
}

// Of what is defined, the tables. Each has a name and a place of its own.
QList<QByteArray> ReadTables(sqlite3* engine)
{
    const qint64 pages = PageCount(engine);
    QSet<qint64> roots;
    QList<QByteArray> tables;
    // The engine knows this one by itself, under several names; no definition may claim one.
    QSet<QByteArray> names{"sqlite_master", "sqlite_schema", "sqlite_temp_master",
                           "sqlite_temp_schema"};
    Statement objects(engine, "SELECT type, name, sql, rootpage FROM sqlite_master");
    while (objects.Step()) {
        const QByteArray type = TextAt(objects, 0);
        const QByteArray name = TextAt(objects, 1);
        const QByteArray sql = TextAt(objects, 2);
        const qint64 root = objects.GetInteger(3);
        const bool isTable = IsPlainTable(type, sql);
        if ((!isTable && !IsIndex(type, sql)) || roots.size() >= mostSchemaObjects)
            Refuse(name);
        if (root < 1 || root > pages || roots.contains(root) || names.contains(name.toLower()))
            FailDamaged();
        roots.insert(root);
        names.insert(name.toLower());
        if (isTable)
            tables += name;
    }
    return tables;
}

} // namespace

// Tables are asked for by the names that the file gives them. As each of these is there once and is
// known to the engine, no table is left out, even where a file gives its tables wrong names.
void CheckSchema(sqlite3* engine)
{
    for (const QByteArray& table : ReadTables(engine)) {
        CheckColumns(engine, table);
        CheckIndexes(engine, table);
    }
}
