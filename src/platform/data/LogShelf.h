// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

struct sqlite3;

// The entries of a ChangeLog that were put aside, in memory of their own. Each commit looks at
// every page of the connection's temporary tables, so a log that has grown large would slow all
// that is done after it.
class LogShelf
{
public:
    // Copies the temporary tables of that connection, outside a transaction. Throws DatabaseError.
    explicit LogShelf(sqlite3* engine);
    ~LogShelf();
    Q_DISABLE_COPY_MOVE(LogShelf)

    // Holds the log under its own name.
    sqlite3* GetEngine() const { return engine_; }
    qint64 GetBytes() const { return bytes_; }

private:
    void CopyFrom(sqlite3* engine);

    sqlite3* engine_ = nullptr;
    qint64 bytes_ = 0;
};
