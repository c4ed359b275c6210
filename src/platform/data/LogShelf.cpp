// SPDX-License-Identifier: MIT
#include "platform/data/LogShelf.h"

#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

namespace {

qint64 PragmaOf(sqlite3* engine, const QByteArray& name)
{
    Statement pragma(engine, "PRAGMA temp." + name);
    return pragma.Step() ? pragma.GetInteger(0) : 0;
}

} // namespace

LogShelf::LogShelf(sqlite3* engine)
{
    try {
        CopyFrom(engine);
    } catch (const DatabaseError&) {
        sqlite3_close_v2(engine_);
        throw;
    }
}

LogShelf::~LogShelf()
{
    sqlite3_close_v2(engine_);
}

// To temporary tables again: the log's triggers come along, and elsewhere the engine would look for
// their tables.
void LogShelf::CopyFrom(sqlite3* engine)
{
    const int code =
        sqlite3_open_v2(":memory:", &engine_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK)
        ThrowEngineError(engine_, code);
    const qint64 pageSize = PragmaOf(engine, "page_size");
    for (const QByteArray& setting : {QByteArray("PRAGMA temp_store=MEMORY"),
                                      "PRAGMA temp.page_size=" + QByteArray::number(pageSize)})
        Statement(engine_, setting).Run();
    sqlite3_backup* copy = sqlite3_backup_init(engine_, "temp", engine, "temp");
    if (copy)
        sqlite3_backup_step(copy, -1);
    const int result = copy ? sqlite3_backup_finish(copy) : sqlite3_errcode(engine_);
    if (result != SQLITE_OK)
        ThrowEngineError(engine_, result);
    bytes_ = PragmaOf(engine_, "page_count") * pageSize;
}
