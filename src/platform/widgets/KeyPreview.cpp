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
    // At least one of these comes between two presses; the next press may have the same address.
    if (event->type() == QEvent::KeyRelease || event->type() == QEvent::ShortcutOverride)
        seen_ = nullptr;
    if (event->type() != QEvent::KeyPress)
        return false;
    auto* control = qobject_cast<QWidget*>(watched);
    if (!control || control->window() != window_)
        return false;
    // An unused key is passed to the control's parents; it is handled only once.
    if (event == seen_ && seenBy_ && control != seenBy_ && control->isAncestorOf(seenBy_))
        return false;
    seen_ = event;
    seenBy_ = control;
    bool used = false;
    RunGuarded([&] { used = handler_(*static_cast<QKeyEvent*>(event)); });
    return used;
}
