// SPDX-License-Identifier: MIT
#include "platform/data/DatabaseExport.h"

#include "platform/data/CipherFile.h"
#include "platform/data/Database.h"
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

// With the indexes: the engine copies one that lacks a row as it is.
bool IsSound(const Database& database)
{
    Statement check(database.GetEngine(), "PRAGMA integrity_check");
    return check.Step() && check.GetUtf8(0) == "ok";
}

// While one lives, a statement of the connection fails soon after isStopped returns true.
class Interruption
{
public:
    Interruption(sqlite3* engine, const std::function<bool()>& isStopped) : engine_(engine)
    {
        constexpr int stepsPerLook = 1000; // of the engine: less than a millisecond
        const auto look = [](void* asked) {
            return int((*static_cast<const std::function<bool()>*>(asked))());
        };
        sqlite3_progress_handler(engine_, stepsPerLook, look,
                                 const_cast<std::function<bool()>*>(&isStopped));
    }
    ~Interruption() { sqlite3_progress_handler(engine_, 0, nullptr, nullptr); }
    Q_DISABLE_COPY_MOVE(Interruption)

private:
    sqlite3* engine_;
};

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
    const Interruption interruption(copy->GetEngine(), isStopped);
    if (!IsSound(*copy) || CountRows(copy->GetEngine()) != CountRows(lock.Get())) {
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
