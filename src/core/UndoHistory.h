// SPDX-License-Identifier: MIT
#pragma once

#include "core/UndoSteps.h"
#include "platform/data/ChangeLog.h"
#include "platform/data/Database.h"

#include <memory>
#include <vector>

// The steps of one open album. Windows and routines use UndoSteps.h instead.
class UndoHistory
{
public:
    struct Step
    {
        QString name;
        GeneralModule::StepCounts counts;
        ChangeLog::Range entries;
    };
    using Steps = std::vector<Step>; // the newest last

    enum class Direction { Undo, Redo };

    explicit UndoHistory(std::shared_ptr<Database> database) : database_(std::move(database)) {}

    // From now on changes are logged; those made before are no steps. Throws DatabaseError.
    void Begin();
    // False in an album that can only be read, and in one with absurdly wide tables.
    bool IsKept() const { return database_->GetLog() != nullptr; }

    // A step inside another one joins it. What is changed in a transaction that is open at the
    // step's beginning or end gets a step without a name of its own. Throw DatabaseError.
    void BeginStep(const QString& name, GeneralModule::StepCounts counts);
    void EndStep();
    bool IsInStep() const { return depth_ > 0; }

    // Looks for what another program has committed, and for changes outside all steps. Throws
    // DatabaseError.
    void Refresh();
    const Steps& Of(Direction direction) const
    {
        return direction == Direction::Undo ? undo_ : redo_;
    }
    // What the step's entries are about: "Load Pictures, 12 pictures".
    QString Describe(const Step& step) const;
    // What has become of the steps when there is none to take back.
    enum class Loss {
        None,          // nothing was done
        OthersChanged, // another program has changed the album since
        TooLarge       // the last one took more than all the memory
    };
    Loss GetLoss() const { return loss_; }

    // Takes back the last steps, or makes them again: all or none. False when progress has stopped
    // it or there are not so many any more. Throws DatabaseError.
    bool Turn(Direction direction, int steps, const ChangeLog::Progress& progress);
    // The paragraph that the last turn brought back; 0 for none and for several.
    qint32 GetReturned() const { return returned_; }

    // Memory for the log; older steps go first. In bytes.
    void SetBudget(qint64 bytes) { budget_ = bytes; }
    // Entries that are put aside when there are so many.
    void SetShelfSize(qint64 entries) { shelfSize_ = entries; }

    void Drop() noexcept;

private:
    ChangeLog& Log() { return *database_->GetLog(); }
    qint64 ReadVersion();
    void DropWhatOthersChanged();
    void AddStep(Step step);
    void DropRedo();
    void PutAside();
    void KeepBudget();
    bool TurnSteps(Steps& from, Steps& to, int steps, const ChangeLog::Progress& progress);

    std::shared_ptr<Database> database_;
    Statement version_; // of what other programs have committed
    Steps undo_;
    Steps redo_;
    Step open_; // while isOpen_
    bool isOpen_ = false;
    int depth_ = 0;  // of nested steps
    qint64 end_ = 0; // the last entry that belongs to a step
    qint64 elsewhere_ = 0;
    Loss loss_ = Loss::None;
    qint32 returned_ = 0;
    qint64 shelfSize_ = 20'000;
    qint64 budget_ = qint64(256) * 1024 * 1024;
};
