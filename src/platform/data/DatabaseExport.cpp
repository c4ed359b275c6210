// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseExport.h"

#include "platform/data/CipherFile.h"
#include "platform/data/Database.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <QMap>

namespace {

QMap<QString, qint64> CountRows(sqlite3* engine)
{
    QMap<QString, qint64> rows;
    Statement tables(engine, "SELECT name FROM sqlite_master WHERE type='table'");
    while (tables.Step()) {
        const std::string_view name = tables.GetUtf8(0);
        const QByteArray table(name.data(), qsizetype(name.size()));
        Statement count(engine, "SELECT count(*) FROM " + QuotedName(table));
        rows.insert(QString::fromUtf8(table), count.Step() ? count.GetInteger(0) : -1);
    }
    return rows;
}

bool IsSound(const Database& database)
{
    Statement check(database.GetEngine(), "PRAGMA integrity_check");
    return check.Step() && check.GetUtf8(0) == "ok";
}

} // namespace

void ExportDatabase(const Database& database, const QString& target, const QString& password)
{
    database.RequireUnmoved();
    // Separate connections: the program's own must not reach other files, and may be in use in
    // another thread.
    const auto connect = [&database] {
        return CipherFile(database.GetPath(), database.GetCipherKey(), database.GetCipherFormat());
    };
    const CipherFile lock = connect();
    Statement(lock.Get(), "BEGIN IMMEDIATE").Run(); // until the connection closes
    connect().ExportTo(target, password);
    const std::shared_ptr<Database> copy = Database::Open(target, password);
    if (!IsSound(*copy) || CountRows(copy->GetEngine()) != CountRows(lock.Get())) {
        throw DatabaseError(DatabaseError::DiskError,
                            DatabaseError::tr("The album could not be written anew."));
    }
}
