// SPDX-License-Identifier: MIT
#include "core/UndoHistory.h"

#include "core/Columns.h"
#include "platform/data/WriteBatch.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <utility>

using GeneralModule::CarField;
using GeneralModule::columnCount;

namespace {

struct HistoryTexts
{
    Q_DECLARE_TR_FUNCTIONS(UndoHistory)
};

// Users' own tables are never changed here.
QStringList LoggedTables()
{
    QStringList tables{QStringLiteral("Chapter"), QStringLiteral("Paragraph"),
                       QStringLiteral("Image"), QStringLiteral("LinkedImages"),
                       QStringLiteral("Params")};
    for (int column = 0; column < columnCount; ++column)
        tables += CarField(column);
    return tables;
}

} // namespace

void UndoHistory::Begin()
{
    // A picture whose copy is gone is shown from its own place, which is noted when it is shown.
    database_->BeginLog(LoggedTables(), {QStringLiteral("SourceFile")});
    if (!IsKept())
        return;
    version_ = Statement(database_->GetEngine(), "PRAGMA data_version");
    elsewhere_ = ReadVersion();
}

void UndoHistory::Drop() noexcept
{
    undo_.clear();
    redo_.clear();
    try {
        Log().ForgetAll();
        end_ = 0;
    } catch (const DatabaseError&) {
        end_ = std::numeric_limits<qint64>::max(); // out of memory: no steps from now on
    }
}

// Kept prepared: each step asks for it.
qint64 UndoHistory::ReadVersion()
{
    version_.Step();
    const qint64 version = version_.GetInteger(0);
    version_.Reset();
    return version;
}

// What was logged before another program's change says nothing about the album as it is now.
void UndoHistory::DropWhatOthersChanged()
{
    const qint64 elsewhere = ReadVersion();
    if (std::exchange(elsewhere_, elsewhere) == elsewhere)
        return;
    if (!undo_.empty() || !redo_.empty() || Log().LastEntry() > end_)
        loss_ = Loss::OthersChanged;
    Drop();
}

void UndoHistory::Refresh()
{
    if (!IsKept() || isOpen_ || database_->IsInTransaction())
        return;
    DropWhatOthersChanged();
    if (const qint64 last = Log().LastEntry(); last > end_)
        AddStep({HistoryTexts::tr("Change"), GeneralModule::StepCounts::Shown, {end_, last, {}}});
}

void UndoHistory::BeginStep(const QString& name, GeneralModule::StepCounts counts)
{
    if (depth_ == 0 && IsKept() && !database_->IsInTransaction()) {
        Refresh();
        open_ = {name, counts, {end_, end_, {}}};
        isOpen_ = true;
    }
    ++depth_;
}

void UndoHistory::EndStep()
{
    if (--depth_ > 0 || !std::exchange(isOpen_, false) || database_->IsInTransaction())
        return;
    open_.entries.last = Log().LastEntry();
    if (open_.entries.IsEmpty())
        return;
    AddStep(std::move(open_));
}

void UndoHistory::AddStep(Step step)
{
    DropRedo();
    end_ = step.entries.last;
    undo_.push_back(std::move(step));
    loss_ = Loss::None;
    PutAside();
    KeepBudget();
}

// A log that is large slows each commit. When this fails, it stays as it is.
void UndoHistory::PutAside()
{
    if (end_ < shelfSize_)
        return;
    try {
        const std::shared_ptr<const LogShelf> shelf = Log().PutAside();
        for (Steps* steps : {&undo_, &redo_}) {
            for (Step& step : *steps) {
                if (!step.entries.shelf)
                    step.entries.shelf = shelf;
            }
        }
        end_ = 0;
    } catch (const DatabaseError&) {
        end_ = Log().LastEntry();
    }
}

void UndoHistory::DropRedo()
{
    for (const Step& step : redo_)
        Log().Forget(step.entries);
    redo_.clear();
}

// A single step may take more than all the memory: then it cannot be taken back.
void UndoHistory::KeepBudget()
{
    if (Log().GetBytes() <= budget_)
        return;
    auto kept = undo_.begin();
    for (; kept != undo_.end() && Log().GetBytes() > budget_; ++kept) {
        Log().Forget(kept->entries);
        kept->entries.shelf.reset(); // the last one that names it frees its memory
    }
    undo_.erase(undo_.begin(), kept);
    if (undo_.empty() && redo_.empty())
        loss_ = Loss::TooLarge;
    end_ = Log().LastEntry();
}

QString UndoHistory::Describe(const Step& step) const
{
    using GeneralModule::StepCounts;
    if (step.counts == StepCounts::Hidden)
        return step.name;
    const ChangeLog& log = *database_->GetLog();
    QStringList parts{step.name};
    if (const int pictures = log.CountRows(QStringLiteral("Image"), step.entries); pictures > 0)
        parts += HistoryTexts::tr("%Ln pictures", nullptr, pictures);
    if (const int paragraphs = log.CountRows(QStringLiteral("Paragraph"), step.entries);
        paragraphs > 0)
        parts += HistoryTexts::tr("%Ln paragraphs", nullptr, paragraphs);
    return parts.join(QStringLiteral(", "));
}

bool UndoHistory::TurnSteps(Steps& from, Steps& to, int steps, const ChangeLog::Progress& progress)
{
    int done = 0;
    for (int i = 0; i < steps; ++i) {
        Step step = from.back();
        int ofStep = 0;
        const auto made = Log().TakeBack(step.entries, [&](int entries) {
            ofStep = entries;
            return progress(done + entries);
        });
        if (!made)
            return false;
        done += ofStep;
        step.entries = *made;
        from.pop_back();
        to.push_back(std::move(step));
    }
    return true;
}

// The lists change only when the album has: a failure on the way leaves both as they were.
bool UndoHistory::Turn(Direction direction, int steps, const ChangeLog::Progress& progress)
{
    if (!IsKept() || IsInStep())
        return false;
    Refresh();
    WriteBatch batch(database_, WriteBatch::Commits::AtItsEnd);
    // From here on no other program can come in between.
    if (ReadVersion() != elsewhere_)
        return false;
    if (steps < 1 || std::size_t(steps) > Of(direction).size())
        return false;
    const qint64 before = Log().LastEntry();
    Steps undo = undo_;
    Steps redo = redo_;
    const bool isUndo = direction == Direction::Undo;
    if (!TurnSteps(isUndo ? undo : redo, isUndo ? redo : undo, steps, progress))
        return false;
    const qint64 end = Log().LastEntry();
    const qint64 returned = Log().OnlyAddedRow(QStringLiteral("Paragraph"), {before, end, {}});
    batch.Finish();
    returned_ = qint32(returned);
    undo_ = std::move(undo);
    redo_ = std::move(redo);
    end_ = end;
    PutAside();
    KeepBudget();
    return true;
}
