// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>
#include <optional>

struct sqlite3;
class Database;

// While one lives, a statement of the connection fails soon after isStopped returns true. (The
// engine's check of a file may go on for a second in one of a million rows.)
class Interruption
{
public:
    Interruption(sqlite3* engine, const std::function<bool()>& isStopped);
    ~Interruption();
    Q_DISABLE_COPY_MOVE(Interruption)

private:
    sqlite3* engine_;
};

// What the engine finds wrong with the file, its tables and their indexes, in its own words; at
// most some dozens. Reads all of it. None when isStopped, which is asked all along, ended it.
std::optional<QStringList> FaultsOfFile(const Database& database,
                                        const std::function<bool()>& isStopped);
