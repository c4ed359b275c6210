// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/Statement.h"

#include <memory>
#include <utility>

// While one lives, this program holds the album's read lock, so that many look-ups take it once and
// not each. What another program wants to write waits; this one may write.
class ReadLock
{
public:
    // Throws DatabaseError InUse.
    explicit ReadLock(const Database& database)
        : spare_(database.spareLock_), held_(std::move(*database.spareLock_))
    {
        if (!held_.IsPrepared())
            held_ = Statement(database.GetEngine(), "SELECT 1 FROM sqlite_master");
        held_.Step();
    }
    // Keeps the statement for the next one: to prepare it takes as long as a look-up.
    ~ReadLock()
    {
        held_.Reset();
        if (const auto spare = spare_.lock())
            *spare = std::move(held_);
    }
    Q_DISABLE_COPY_MOVE(ReadLock)

private:
    std::weak_ptr<Statement> spare_; // the database may be closed meanwhile
    Statement held_;                 // in the middle of a run
};
