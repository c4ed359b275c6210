// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"
#include "platform/data/Statement.h"

#include <QStringList>

#include <chrono>
#include <functional>

// Goes once through the rows of a table that meet a filter, for some time at a time. In between no
// lock is held; what is changed meanwhile is seen where it has not gone yet.
class RowScan
{
public:
    // Gets a row: result column 0 is the engine's row number, the fields follow.
    using Visit = std::function<void(const Statement&)>;

    // An empty filter gives every row. Throws DatabaseError as TranslateFilter, and for a table or
    // field that is not there. Neither this nor Work waits for a lock of another program: InUse.
    RowScan(std::shared_ptr<Database> database, const QString& table, const QString& filter,
            const QStringList& fields);

    // Visits further rows for about that time. False when there are no more. Throws DatabaseError.
    bool Work(std::chrono::milliseconds time, const Visit& visit);

private:
    using Time = std::chrono::steady_clock::time_point;

    bool VisitNext(Time deadline, const Visit& visit);

    std::shared_ptr<Database> database_;
    Statement first_; // row number after a given one
    Statement rows_;  // of a range of row numbers
    int parameterOfEnd_;
    qint64 before_;
};
