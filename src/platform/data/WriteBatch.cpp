// SPDX-License-Identifier: MIT
#include "platform/data/WriteBatch.h"

#include "platform/data/Database.h"
#include "platform/data/DatabaseError.h"

#include <sqlcipher/sqlite3.h>

namespace {

constexpr int rowsPerCommit = 10'000;
constexpr qint64 millisecondsPerCommit = 500;

} // namespace

WriteBatch::WriteBatch(std::shared_ptr<Database> database, Commits commits)
    : database_(std::move(database)), commits_(commits)
{
    if (database_->openBatches_ == 0)
        Begin();
    ++database_->openBatches_;
}

WriteBatch::~WriteBatch()
{
    if (finished_)
        return;
    if (commits_ == Commits::AtItsEnd) {
        RollBack();
        return;
    }
    try {
        Finish();
    } catch (const DatabaseError&) {
        // Whoever needs to know has called Finish; the engine has rolled the rest back.
    }
}

bool WriteBatch::IsOutermost() const
{
    return database_->openBatches_ == 1;
}

void WriteBatch::Begin()
{
    database_->Execute("BEGIN IMMEDIATE");
    try {
        database_->BeforeChange();
    } catch (...) {
        RollBackAll();
        throw;
    }
    sinceCommit_.start();
    rows_ = 0;
}

// A full disk may have ended the transaction already; then there is nothing left to commit.
void WriteBatch::Commit()
{
    if (sqlite3_get_autocommit(database_->GetEngine()))
        return;
    try {
        database_->Execute("COMMIT");
    } catch (const DatabaseError&) {
        if (!sqlite3_get_autocommit(database_->GetEngine()))
            database_->Execute("ROLLBACK");
        throw;
    }
}

void WriteBatch::RowDone()
{
    ++rows_;
    if (!IsOutermost() || commits_ == Commits::AtItsEnd ||
        (rows_ < rowsPerCommit && sinceCommit_.elapsed() < millisecondsPerCommit))
        return;
    Commit();
    Begin();
}

void WriteBatch::Finish()
{
    if (finished_)
        return;
    finished_ = true;
    const bool outermost = IsOutermost();
    --database_->openBatches_;
    if (outermost)
        Commit();
}

void WriteBatch::RollBack() noexcept
{
    const bool outermost = IsOutermost();
    --database_->openBatches_;
    if (outermost)
        RollBackAll();
}

void WriteBatch::RollBackAll() noexcept
{
    if (!sqlite3_get_autocommit(database_->GetEngine()))
        sqlite3_exec(database_->GetEngine(), "ROLLBACK", nullptr, nullptr, nullptr);
}
