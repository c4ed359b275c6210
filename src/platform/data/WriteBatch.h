// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <memory>

class Database;

// While one lives, changed rows are committed together: after every so many rows, and at its end.
// Batches may be nested; only the outermost commits. What was done before an error stays done.
class WriteBatch
{
public:
    enum class Commits {
        OnItsWay,
        // All rows or none: without Finish nothing is changed. Other programs must wait until then.
        AtItsEnd
    };

    // Throws DatabaseError InUse. In a nested batch commits is ignored.
    explicit WriteBatch(std::shared_ptr<Database> database, Commits commits = Commits::OnItsWay);
    ~WriteBatch();
    WriteBatch(const WriteBatch&) = delete;
    WriteBatch& operator=(const WriteBatch&) = delete;

    // Call after each row: commits when enough has gathered, so that other programs need not wait
    // for a long loop to end. Throws DatabaseError.
    void RowDone();

    // Commits what is left and reports failure; the destructor of an OnItsWay batch does the same
    // silently.
    void Finish();

private:
    bool IsOutermost() const;
    void Begin();
    void Commit();
    void RollBack() noexcept;
    void RollBackAll() noexcept;

    std::shared_ptr<Database> database_;
    Commits commits_;
    QElapsedTimer sinceCommit_;
    int rows_ = 0;
    bool finished_ = false;
};
