// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class UndoHistory;

// What the user has done to the open album since it was opened, to be taken back step by step.
// Nothing of it is in the album or on the disk.
namespace GeneralModule {

// Whether a step's name is followed by how many pictures and paragraphs it has changed.
enum class StepCounts { Hidden, Shown };

// While one lives, all that is changed in the open album is one step of that name, however many
// commits it takes. One inside another joins it. A step that changes nothing leaves no trace.
// Without an album it does nothing. The constructor throws DatabaseError.
class UndoStep
{
    Q_DECLARE_TR_FUNCTIONS(UndoStep) // names of steps

public:
    explicit UndoStep(const QString& name, StepCounts counts = StepCounts::Hidden);
    ~UndoStep();
    Q_DISABLE_COPY_MOVE(UndoStep)

private:
    std::weak_ptr<UndoHistory> history_; // the album may be closed meanwhile
};

// The name of a step that is about something with a text: the action and the text's beginning in
// quotation marks.
QString StepAbout(const QString& action, const QString& text);

// The names of the steps that can be taken back or made again, the next one first. Empty while none
// is open, and while a step is being made. Throw DatabaseError.
QStringList UndoNames();
QStringList RedoNames();
// The first of these; empty when there is none.
QString UndoName();
QString RedoName();
// Why there is nothing to take back, for the user to read.
QString WhyNoUndo();

// Called with the number of changed fields and rows done; returns false to stop.
using UndoProgress = std::function<bool(int done)>;

// Take back that many steps, or make them again: all or none. Return what was done, for the user to
// read; empty when it was stopped or there are not so many. Throw DatabaseError; then nothing is
// changed.
QString Undo(
    int steps = 1, const UndoProgress& progress = [](int) { return true; });
QString Redo(
    int steps = 1, const UndoProgress& progress = [](int) { return true; });

// The paragraph that the last of both brought back, for a window to go there; 0 for none and for
// several.
qint32 ReturnedParagraph();

// What an open window does when steps are taken back or made again; for as long as it lives. Those
// that began to listen last come first. What one throws is shown, and the others go on.
class UndoListener
{
public:
    // Writes what the user has changed in the window and not saved: that becomes the next step to
    // take back, and nothing typed is lost. False when the user wants to stay as it is.
    using Save = std::function<bool()>;
    // Shows the album as it is now.
    using Show = std::function<void()>;

    explicit UndoListener(Show show, Save save = {});
    ~UndoListener();
    Q_DISABLE_COPY_MOVE(UndoListener)

    // Call before a step is chosen. False when one of the windows must stay as it is.
    static bool SaveAll();
    // Undo and Redo call it.
    static void ShowAll();

private:
    Show show_;
    Save save_;
};

} // namespace GeneralModule
