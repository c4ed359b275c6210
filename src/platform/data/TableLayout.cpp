// SPDX-License-Identifier: MIT
#include "platform/data/TableLayout.h"

#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

namespace {

TableLayout::Field DescribeField(sqlite3* engine, const QByteArray& table, const QByteArray& name)
{
    const char* type = nullptr;
    const char* collation = nullptr;
    int notNull = 0;
    int primaryKey = 0;
    int autoIncrement = 0;
    const int code =
        sqlite3_table_column_metadata(engine, nullptr, table.constData(), name.constData(), &type,
                                      &collation, &notNull, &primaryKey, &autoIncrement);
    if (code != SQLITE_OK)
        ThrowEngineError(engine, code);
    const bool isNumber = type && QByteArray(type).toUpper().contains("INT");
    const bool ignoresCase = collation && qstricmp(collation, "NOCASE") == 0;
    return {name, QString::fromUtf8(name), isNumber, ignoresCase,
            isNumber && primaryKey && autoIncrement};
}

} // namespace

TableLayout::TableLayout(sqlite3* engine, const QString& table) : table_(table.toUtf8())
{
    Statement columns(engine, "PRAGMA table_info(" + QuotedName(table_) + ")");
    while (columns.Step()) {
        const std::string_view name = columns.GetUtf8(1);
        fields_.push_back(
            DescribeField(engine, table_, QByteArray(name.data(), qsizetype(name.size()))));
        if (fields_.back().isIdentity)
            identity_ = Count() - 1;
    }
    if (fields_.empty()) {
        throw DatabaseError(DatabaseError::NoSuchTable,
                            DatabaseError::tr("The album has no table '%1'.").arg(table));
    }
    if (Count() > maxFields) {
        throw DatabaseError(DatabaseError::TooComplex,
                            DatabaseError::tr("Table '%1' has too many fields.").arg(table));
    }
}

int TableLayout::Find(QStringView name) const
{
    for (int i = 0; i < Count(); ++i) {
        const QString& candidate = At(i).text;
        if (candidate.size() == name.size() && candidate.compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

QByteArray QuotedName(const QByteArray& name)
{
    return '"' + QByteArray(name).replace('"', "\"\"") + '"';
}
