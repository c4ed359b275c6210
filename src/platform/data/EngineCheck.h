// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

struct sqlite3;

// While one lives, what a connection does fails soon after isStopped has returned true: statements,
// and the reading of the main file, since the engine's check of a file reads all of it in one step
// of a statement. Only one at a time for a connection. isStopped, which is not asked again once it
// has returned true, is called very often.
class Interruption
{
public:
    Interruption(sqlite3* engine, const std::function<bool()>& isStopped);
    ~Interruption();
    Q_DISABLE_COPY_MOVE(Interruption)

    sqlite3* GetEngine() const { return engine_; }
    bool HasStopped() const;

private:
    class Watch;

    sqlite3* engine_;
    std::unique_ptr<Watch> watch_;
};

// What the engine finds wrong with the connection's file, its tables and their indexes, in its own
// words; at most some dozens. Reads all of it. None when it was interrupted.
std::optional<QStringList> FaultsOfFile(const Interruption& interruption);
