// SPDX-License-Identifier: MIT
#include "platform/widgets/SettledResize.h"

#include "platform/dialogs/Guard.h"

#include <QEvent>
#include <QWidget>

namespace {

constexpr int dragPause = 120; // milliseconds between two reported sizes

} // namespace

SettledResize::SettledResize(QWidget* window, std::function<void()> handler)
    : QObject(window), handler_(std::move(handler))
{
    delay_.setSingleShot(true);
    connect(&delay_, &QTimer::timeout, this, &SettledResize::Tell);
    window->installEventFilter(this);
}

bool SettledResize::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        const bool isDragging = sinceTold_.isValid() && sinceTold_.elapsed() < dragPause;
        delay_.start(isDragging ? dragPause : 0);
    } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
        delay_.stop();
    }
    return false;
}

void SettledResize::Tell()
{
    sinceTold_.start();
    RunGuarded(handler_);
    sinceTold_.start(); // the handler's own time does not count
}
