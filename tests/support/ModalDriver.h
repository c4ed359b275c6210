// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

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
