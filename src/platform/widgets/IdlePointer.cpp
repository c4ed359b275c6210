// SPDX-License-Identifier: MIT
#include "platform/widgets/IdlePointer.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

IdlePointer::IdlePointer(QWidget* window, int patience) : QObject(window), window_(window)
{
    idle_.setSingleShot(true);
    idle_.setInterval(patience);
    connect(&idle_, &QTimer::timeout, this, &IdlePointer::Hide);
    place_ = QCursor::pos();
    // On the application, because the widget under the pointer gets a movement first.
    qApp->installEventFilter(this);
    idle_.start();
}

IdlePointer::~IdlePointer()
{
    Show();
}

bool IdlePointer::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::MouseMove && event->type() != QEvent::MouseButtonPress)
        return false;
    // Some systems report a movement when only the window under the pointer has changed.
    const QPoint place = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    if (place == place_ && event->type() == QEvent::MouseMove)
        return false;
    place_ = place;
    Show();
    idle_.start();
    return false;
}

void IdlePointer::Hide()
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (!window_->isVisible() || (modal && modal != window_))
        return idle_.start();
    if (isHidden_)
        return;
    isHidden_ = true;
    QApplication::setOverrideCursor(Qt::BlankCursor);
}

void IdlePointer::Show()
{
    if (!isHidden_)
        return;
    isHidden_ = false;
    QApplication::restoreOverrideCursor();
}
