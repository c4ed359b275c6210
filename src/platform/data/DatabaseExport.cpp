// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseExport.h"

#include "platform/data/CipherFile.h"
#include "platform/data/Database.h"
#include "platform/data/EngineCheck.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <sqlcipher/sqlite3.h>

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

void Export(const Database& database, const QString& target, const QString& password,
            const std::function<bool()>& isStopped)
{
    database.RequireUnmoved();
    // Separate connections: the program's own must not reach other files, and may be in use in
    // another thread.
    const auto connect = [&database] {
        return CipherFile(database.GetPath(), database.GetCipherKey(), database.GetCipherFormat());
    };
    const CipherFile lock = connect();
    Statement(lock.Get(), "BEGIN IMMEDIATE").Run(); // until the connection closes
    {
        CipherFile source = connect();
        const Interruption interruption(source.Get(), isStopped);
        source.ExportTo(target, password);
    }
    const std::shared_ptr<Database> copy = Database::Open(target, password);
    // With the indexes: the engine copies one that lacks a row as it is.
    const Interruption interruption(copy->GetEngine(), isStopped);
    const std::optional<QStringList> faults = FaultsOfFile(interruption);
    if (!faults || !faults->isEmpty() || CountRows(copy->GetEngine()) != CountRows(lock.Get())) {
        throw DatabaseError(DatabaseError::DiskError,
                            DatabaseError::tr("The album could not be written anew."));
    }
}

} // namespace

bool ExportDatabase(const Database& database, const QString& target, const QString& password,
                    const std::function<bool()>& isStopped)
{
    try {
        Export(database, target, password, isStopped);
    } catch (const DatabaseError&) {
        if (!isStopped())
            throw;
    }
    return !isStopped();
}
