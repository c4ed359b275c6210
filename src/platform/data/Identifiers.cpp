// SPDX-License-Identifier: MIT
#include "platform/data/Identifiers.h"

#include "platform/data/TableLayout.h"

#include <sqlcipher/sqlite3.h>

#include <algorithm>

NewIdentifiers::NewIdentifiers(sqlite3* engine, const QByteArray& table)
    : engine_(engine), table_(table)
{
    last_ = std::max(LastGiven(), Highest("SELECT rowid AS number FROM " + QuotedName(table_)));
}

// The engine's own record. A row outside the range overwrites it; then only links still show which
// identifiers deleted rows had.
qint64 NewIdentifiers::LastGiven() const
{
    Statement noted(engine_, "SELECT seq FROM sqlite_sequence WHERE name=?1");
    noted.Bind(1, QString::fromUtf8(table_));
    const qint64 last = noted.Step() ? noted.GetInteger(0) : 0;
    if (last >= 0 && last <= highestIdentifier)
        return last;
    qint64 linked = 0;
    for (const QByteArray& select : LinkSelects())
        linked = std::max(linked, Highest(select));
    return linked;
}

// Sorted instead of MAX, so that the engine starts at the end of an index.
qint64 NewIdentifiers::Highest(const QByteArray& select) const
{
    Statement highest(engine_, "SELECT number FROM (" + select + ") WHERE number BETWEEN 1 AND " +
                                   QByteArray::number(highestIdentifier) +
                                   " ORDER BY number DESC LIMIT 1");
    return highest.Step() ? highest.GetInteger(0) : 0;
}

// Selects the fields of other tables that are named after this table.
QByteArrayList NewIdentifiers::LinkSelects() const
{
    QByteArrayList selects;
    const QByteArray field = table_ + "Id";
    Statement tables(engine_, "SELECT name FROM sqlite_master WHERE type='table'");
    while (tables.Step()) {
        const QByteArray table = tables.GetUtf8(0).data();
        if (sqlite3_table_column_metadata(engine_, nullptr, table.constData(), field.constData(),
                                          nullptr, nullptr, nullptr, nullptr, nullptr) == SQLITE_OK)
            selects += "SELECT " + QuotedName(field) + " AS number FROM " + QuotedName(table);
    }
    return selects;
}

qint64 NewIdentifiers::Next()
{
    if (!isUsed_.IsPrepared() && last_ < highestIdentifier)
        return ++last_;
    return NextDown();
}

qint64 NewIdentifiers::NextDown()
{
    if (!isUsed_.IsPrepared()) {
        QByteArrayList used = LinkSelects();
        used += "SELECT rowid AS number FROM " + QuotedName(table_);
        isUsed_ = Statement(engine_, "SELECT 1 FROM (" + used.join(" UNION ALL ") +
                                         ") WHERE number=?1 LIMIT 1");
    }
    while (--last_ > 0) {
        isUsed_.Bind(1, last_);
        if (!isUsed_.Step())
            return last_;
        isUsed_.Reset();
    }
    throw DatabaseError(DatabaseError::Overflow,
                        DatabaseError::tr("The album has used up its identifiers."));
}
