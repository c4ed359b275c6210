// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets>

#include <functional>

// Does something in a modal window that is about to open, from inside its event loop: waits until
// the window of that name (or of that class) is the active modal one, and runs the action. Fails
// the test and closes the window when the action leaves it open, or when it never opens. Calls may
// be made inside an action for the window that the action opens.
void WhenModal(const QString& name, const std::function<void(QWidget&)>& action,
               bool closesItself = true);

// The child control of that name; a test that asks for one that is not there ends.
template<typename Widget>
Widget& Find(QWidget& window, const QString& name)
{
    auto* found = window.findChild<Widget*>(name);
    if (!found)
        qFatal("there is no control %s", qPrintable(name));
    return *found;
}

// False when the window does not take the files (paths or URLs) at all.
bool DropFiles(QWidget& window, const QStringList& paths);

// A left click on the control of that name, whatever it is.
void Click(QWidget& window, const QString& control);
// Turns the wheel over the middle of the control, away from the user or, below 0, the other way.
void TurnWheel(QWidget& control, double notches);
// A left click on a line, or a double click.
void ClickLine(QListWidget& list, int row, bool twice = false);
// Opens the list's context menu on its first line.
QMenu& OpenMenuOf(QListWidget& list);
// Drops a line on the upper or the lower half of another one, as at the end of a drag.
void DropLine(QListWidget& list, int from, int onto, bool isLowerHalf);
// What stands in a list, a "*" before the line that is current.
QStringList Lines(const QListWidget& list);
