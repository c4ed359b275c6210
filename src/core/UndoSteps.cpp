// SPDX-License-Identifier: MIT
#include "core/UndoSteps.h"

#include "core/AlbumSets.h"
#include "core/UndoHistory.h"
#include "platform/dialogs/Guard.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace {

using namespace GeneralModule;
using Direction = UndoHistory::Direction;

struct StepTexts
{
    Q_DECLARE_TR_FUNCTIONS(UndoSteps)
};

std::vector<const UndoListener*>& Listeners()
{
    static std::vector<const UndoListener*> listeners;
    return listeners;
}

// The last one first; a window may be closed while another one is called. False once call is.
bool ForEachListener(const std::function<bool(const UndoListener&)>& call)
{
    const auto called = Listeners();
    return std::all_of(called.rbegin(), called.rend(), [&](const UndoListener* listener) {
        const auto& present = Listeners();
        return std::find(present.begin(), present.end(), listener) == present.end() ||
               call(*listener);
    });
}

// Null where none is kept, and while a step is being made.
std::shared_ptr<UndoHistory> RestingHistory()
{
    const Album* album = FindOpenedAlbum();
    const bool isResting = album && album->history->IsKept() && !album->history->IsInStep();
    return isResting ? album->history : nullptr;
}

QStringList Names(Direction direction)
{
    QStringList names;
    if (const auto history = RestingHistory()) {
        history->Refresh();
        for (const UndoHistory::Step& step : history->Of(direction))
            names.prepend(history->Describe(step));
    }
    return names;
}

QString FirstName(Direction direction)
{
    const auto history = RestingHistory();
    if (!history)
        return {};
    history->Refresh();
    const UndoHistory::Steps& steps = history->Of(direction);
    return steps.empty() ? QString() : history->Describe(steps.back());
}

// Steps that were made last come last.
QString NameOfLast(const UndoHistory& history, Direction direction, int steps)
{
    const UndoHistory::Steps& list = history.Of(direction);
    return steps == 1 && !list.empty() ? history.Describe(list.back()) : QString();
}

QString TextOf(Direction direction, const QString& name, int steps)
{
    if (direction == Direction::Undo)
        return steps == 1 ? StepTexts::tr("Undone: %1").arg(name)
                          : StepTexts::tr("%n steps undone", nullptr, steps);
    return steps == 1 ? StepTexts::tr("Redone: %1").arg(name)
                      : StepTexts::tr("%n steps redone", nullptr, steps);
}

QString Turn(Direction direction, int steps, const UndoProgress& progress)
{
    const auto history = RestingHistory();
    if (!history)
        return {};
    const QString name = NameOfLast(*history, direction, steps);
    if (!history->Turn(direction, steps, progress))
        return {};
    UndoListener::ShowAll();
    return TextOf(direction, name, steps);
}

} // namespace

namespace GeneralModule {

UndoStep::UndoStep(const QString& name, StepCounts counts)
{
    if (const Album* album = FindOpenedAlbum()) {
        album->history->BeginStep(name, counts);
        history_ = album->history;
    }
}

UndoStep::~UndoStep()
{
    const std::shared_ptr<UndoHistory> history = history_.lock();
    if (!history)
        return;
    try {
        history->EndStep();
    } catch (const DatabaseError&) {
        history->Drop(); // rather nothing to take back than half of something
    }
}

QString StepAbout(const QString& action, const QString& text)
{
    constexpr qsizetype longest = 30;
    constexpr qsizetype looked = 200; // blanks among them do not count
    const QString line = text.left(looked).simplified();
    if (line.isEmpty())
        return action;
    const QString shown =
        line.size() <= longest ? line : line.left(longest - 1).trimmed() + QChar(u'…');
    return StepTexts::tr("%1 “%2”").arg(action, shown);
}

QStringList UndoNames()
{
    return Names(Direction::Undo);
}

QStringList RedoNames()
{
    return Names(Direction::Redo);
}

QString UndoName()
{
    return FirstName(Direction::Undo);
}

QString RedoName()
{
    return FirstName(Direction::Redo);
}

QString WhyNoUndo()
{
    const auto history = RestingHistory();
    switch (history ? history->GetLoss() : UndoHistory::Loss::None) {
    case UndoHistory::Loss::OthersChanged:
        return StepTexts::tr("Another program has changed the album. What was done before that "
                             "cannot be undone any more.");
    case UndoHistory::Loss::TooLarge:
        return StepTexts::tr("What was done last is too large to be undone.");
    case UndoHistory::Loss::None:
        break;
    }
    return StepTexts::tr("There is nothing to undo.");
}

QString Undo(int steps, const UndoProgress& progress)
{
    return Turn(Direction::Undo, steps, progress);
}

QString Redo(int steps, const UndoProgress& progress)
{
    return Turn(Direction::Redo, steps, progress);
}

qint32 ReturnedParagraph()
{
    const auto history = RestingHistory();
    return history ? history->GetReturned() : 0;
}

UndoListener::UndoListener(Show show, Save save) : show_(std::move(show)), save_(std::move(save))
{
    Listeners().push_back(this);
}

UndoListener::~UndoListener()
{
    std::erase(Listeners(), this);
}

bool UndoListener::SaveAll()
{
    return ForEachListener([](const UndoListener& listener) {
        bool isSaved = !listener.save_;
        RunGuarded([&] { isSaved = isSaved || listener.save_(); });
        return isSaved;
    });
}

void UndoListener::ShowAll()
{
    ForEachListener([](const UndoListener& listener) {
        RunGuarded(listener.show_);
        return true;
    });
}

} // namespace GeneralModule
