// SPDX-License-Identifier: MIT
#include "viewer/LargePictureBox.h"

#include <QApplication>
#include <QMouseEvent>

#include <utility>

void LargePictureBox::SetDraggable(bool isDraggable)
{
    isDraggable_ = isDraggable;
    if (isDraggable)
        setCursor(Qt::OpenHandCursor);
    else
        unsetCursor();
}

void LargePictureBox::mousePressEvent(QMouseEvent* event)
{
    if (!isDraggable_ || event->button() != Qt::LeftButton)
        return PictureBox::mousePressEvent(event);
    left_ = Button::Down;
    last_ = event->globalPosition();
}

void LargePictureBox::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF by = event->globalPosition() - last_;
    const bool isStill =
        left_ == Button::Down && by.manhattanLength() < QApplication::startDragDistance();
    if (left_ == Button::Up || isStill)
        return;
    left_ = Button::Dragging;
    last_ = event->globalPosition();
    emit Dragged(by);
}

void LargePictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(left_, Button::Up) == Button::Down)
        emit Pressed(Qt::LeftButton);
}
