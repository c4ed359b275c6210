// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/ChangeTriggers.h"
#include "platform/data/LogShelf.h"
#include "platform/data/Statement.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

// What this connection has changed in an album since the log was made: one entry for each row that
// was added or deleted and each field that got another value, in their order. Lies in memory, never
// in a file. An entry goes with its change when that is rolled back, however that comes about.
class ChangeLog
{
public:
    // Entries by their numbers: those after the one up to and including the other.
    struct Range
    {
        qint64 after = 0;
        qint64 last = 0;
        std::shared_ptr<const LogShelf> shelf = {}; // where they were put aside; null: not yet

        bool IsEmpty() const { return last <= after; }
    };

    // Called with the number of entries done; returns false to stop.
    using Progress = std::function<bool(int done)>;

    // Above this many fields in one table an album gets no log.
    static constexpr int maxFields = 500;

    // Begins a log of those tables that the album has. Changes of fields that are left out, in
    // whatever table, are not logged, only their values in deleted rows. The engine must run
    // triggers. Throws DatabaseError, TooComplex for a table with too many fields.
    ChangeLog(sqlite3* engine, const QStringList& tables, const QStringList& leftOut);

    // The last entry's number, 0 when there is none that is not put aside. Numbers of entries that
    // are no longer there may come again.
    qint64 LastEntry() const;

    // Takes back what the entries record, last first, and forgets them. What that changes is logged
    // itself: returns the entries, by which it can be made again; none when progress has stopped
    // it. Only sound when the album holds what it held after the last of them. Call in a batch that
    // is all or nothing, and roll that back after a stop. Throws DatabaseError.
    std::optional<Range> TakeBack(const Range& entries, const Progress& progress);

    // Those that were put aside go with the last range that names their shelf. Both throw
    // DatabaseError.
    void Forget(const Range& entries);
    void ForgetAll();

    // Moves all entries that are not put aside to a shelf, which all their ranges must name from
    // then on. Call outside a transaction. Throws DatabaseError; then nothing has changed.
    std::shared_ptr<const LogShelf> PutAside();

    // Memory that the log takes with its shelves, right between two transactions.
    qint64 GetBytes() const;
    // How many rows of the table the entries are about.
    int CountRows(const QString& table, const Range& entries) const;
    // The row of the table that the entries have added; 0 for none and for several. Not of those
    // that were put aside. Throws DatabaseError.
    qint64 OnlyAddedRow(const QString& table, const Range& entries) const;

    // How many entries were forgotten since the beginning; the engine counts these as changes.
    int GetForgotten() const { return forgotten_; }

private:
    Statement& Reversal(std::size_t change);
    void TakeBackEntry(const Statement& entry);
    sqlite3* EngineOf(const Range& entries) const;
    void Run(Statement& deletion);

    sqlite3* engine_;
    std::vector<TableLayout> layouts_;
    std::vector<LoggedChange> changes_;
    std::vector<Statement> reversals_; // by change, prepared when needed
    mutable Statement last_;           // kept prepared, as each step asks for both
    mutable Statement pages_;
    qint64 pageSize_ = 0;
    std::vector<std::weak_ptr<const LogShelf>> shelves_;
    int forgotten_ = 0;
};
