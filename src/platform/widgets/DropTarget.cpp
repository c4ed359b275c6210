// SPDX-License-Identifier: MIT
#include "platform/widgets/DropTarget.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

DropTarget::DropTarget(QWidget* window) : QObject(window)
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

bool DropTarget::IsInFront() const
{
    const QWidget* modal = QApplication::activeModalWidget();
    return !modal || modal == parent();
}

void DropTarget::Take(const QList<QUrl>& urls)
{
    if (IsInFront())
        emit Dropped(urls);
}

bool DropTarget::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return false;
    auto& drop = *static_cast<QDropEvent*>(event);
    if (!drop.mimeData()->hasUrls() || !IsInFront()) {
        drop.ignore();
        return true;
    }
    drop.acceptProposedAction();
    if (event->type() == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, urls = drop.mimeData()->urls()] { Take(urls); }, Qt::QueuedConnection);
    return true;
}
