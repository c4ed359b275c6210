// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/PictureBox.h"

// The box of a picture that is shown alone. While it shows a part of the picture, that part can be
// dragged, and a press counts only once the button is released in the same place.
class LargePictureBox : public PictureBox
{
    Q_OBJECT

public:
    using PictureBox::PictureBox;

    void SetDraggable(bool isDraggable);

signals:
    void Dragged(const QPointF& by);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum class Button { Up, Down, Dragging };

    bool isDraggable_ = false;
    Button left_ = Button::Up;
    QPointF last_; // on the desktop
};
