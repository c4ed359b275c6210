// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/Statement.h"

// While one lives, this program holds the album's read lock, so that many look-ups take it once and
// not each. What another program wants to write waits; this one may write.
class ReadLock
{
public:
    // Throws DatabaseError InUse.
    explicit ReadLock(const Database& database)
        : held_(database.GetEngine(), "SELECT 1 FROM sqlite_master")
    {
        held_.Step();
    }

private:
    Statement held_; // in the middle of a run
};
