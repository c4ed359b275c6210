// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseExport.h"

#include "platform/data/Database.h"
#include "platform/data/Statement.h"
#include "platform/data/TableLayout.h"

#include <sqlcipher/sqlite3.h>

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QScopeGuard>

namespace {

// A connection of its own to a file: the one that the program works on may not reach other files.
class Connection
{
public:
    Connection(const QString& path, const QString& password)
    {
        // May create: not this file, which is open already, but the one that is attached to it.
        const int code = sqlite3_open_v2(QFile::encodeName(path).constData(), &engine_,
                                         SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
        if (code != SQLITE_OK)
            ThrowEngineError(engine_, code);
        const QByteArray key = password.toUtf8();
        if (!key.isEmpty())
            sqlite3_key(engine_, key.constData(), int(key.size()));
    }
    ~Connection() { sqlite3_close_v2(engine_); }
    Q_DISABLE_COPY_MOVE(Connection)

    sqlite3* Get() const { return engine_; }

private:
    sqlite3* engine_ = nullptr;
};

void CopyInto(const Database& database, const QString& target, const QString& password)
{
    const Connection source(database.GetPath(), database.GetPassword());
    Statement attach(source.Get(), "ATTACH ?1 AS target KEY ?2");
    attach.Bind(1, target);
    attach.Bind(2, password);
    attach.Run();
    Statement(source.Get(), "SELECT sqlcipher_export('target')").Run();
    Statement(source.Get(), "DETACH target").Run();
}

QMap<QString, qint64> CountRows(const Database& database)
{
    QMap<QString, qint64> rows;
    Statement tables(database.GetEngine(), "SELECT name FROM sqlite_master WHERE type='table'");
    while (tables.Step()) {
        const std::string_view name = tables.GetUtf8(0);
        const QByteArray table(name.data(), qsizetype(name.size()));
        Statement count(database.GetEngine(), "SELECT count(*) FROM " + QuotedName(table));
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

void ExportDatabase(Database& database, const QString& target, const QString& password)
{
    QFile::remove(target);
    auto removeTarget = qScopeGuard([&target] { QFile::remove(target); });
    database.Execute("BEGIN IMMEDIATE");
    const auto unlock = qScopeGuard([&database] { database.Execute("ROLLBACK"); });
    CopyInto(database, target, password);
    const std::shared_ptr<Database> copy = Database::Open(target, password);
    if (!IsSound(*copy) || CountRows(*copy) != CountRows(database)) {
        throw DatabaseError(DatabaseError::DiskError,
                            DatabaseError::tr("The album could not be written anew."));
    }
    removeTarget.dismiss();
}
