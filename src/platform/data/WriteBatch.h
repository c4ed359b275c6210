// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <memory>

class Database;

// While one lives, changed rows are committed together: every so many rows, and at its end. Batches
// may lie inside each other; the outermost one counts. What was done before an error stays done.
class WriteBatch
{
public:
    enum class Commits {
        OnItsWay,
        // All rows or none: without Finish nothing is changed. Other programs must wait until then.
        AtItsEnd
    };

    // Throws DatabaseError InUse. Inside another batch commits counts for nothing.
    explicit WriteBatch(std::shared_ptr<Database> database, Commits commits = Commits::OnItsWay);
    ~WriteBatch();
    WriteBatch(const WriteBatch&) = delete;
    WriteBatch& operator=(const WriteBatch&) = delete;

    // Call after each row: commits when enough has gathered, so that neither a long loop nor
    // another program waits for ever. Throws DatabaseError.
    void RowDone();

    // Commits what is left and reports failure; the destructor of a batch that commits on its way
    // does so too, but in silence.
    void Finish();

private:
    bool IsOutermost() const;
    void Begin();
    void Commit();
    void RollBack() noexcept;

    std::shared_ptr<Database> database_;
    Commits commits_;
    QElapsedTimer sinceCommit_;
    int rows_ = 0;
    bool finished_ = false;
};
