// SPDX-License-Identifier: MIT
#include "platform/widgets/KeyPreview.h"

#include "platform/dialogs/Guard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

KeyPreview::KeyPreview(QWidget* window, Handler handler)
    : QObject(window), window_(window), handler_(std::move(handler))
{
    qApp->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    // A key goes to the focused control first and then up its parents; it is looked at once.
    const auto* control = qobject_cast<QWidget*>(watched);
    const QWidget* first = control ? control->window()->focusWidget() : nullptr;
    if (!control || control->window() != window_ || (first ? first : window_) != control)
        return false;
    bool used = false;
    RunGuarded([&] { used = handler_(*static_cast<QKeyEvent*>(event)); });
    return used;
}
