// SPDX-License-Identifier: MIT
#include "platform/widgets/PictureBox.h"

#include "platform/widgets/ThemedIcon.h"

#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

PictureBox::PictureBox(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::SetTag(const QString& tag)
{
    tag_ = tag;
    setAccessibleName(QFileInfo(tag).fileName());
}

void PictureBox::SetPicture(const QImage& picture)
{
    picture_ = picture;
    update();
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (picture_.isNull())
        return PaintUnreadable(painter);
    if (picture_.hasAlphaChannel())
        painter.fillRect(rect(), Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), picture_);
}

void PictureBox::PaintUnreadable(QPainter& painter)
{
    const QColor ground(58, 60, 64);
    const QColor ink(176, 178, 182);
    painter.fillRect(rect(), ground);
    const int side = std::min({48, width() / 2, height() / 2});
    const int lines = 2 * fontMetrics().height();
    const QRect sign((width() - side) / 2, (height() - side - lines) / 2, side, side);
    DrawIcon(painter, QStringLiteral("broken-picture"), sign, ink);
    painter.setPen(ink);
    const QRect caption(8, sign.bottom() + 4, width() - 16, lines);
    const QString name =
        fontMetrics().elidedText(QFileInfo(tag_).fileName(), Qt::ElideMiddle, caption.width());
    painter.drawText(caption, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine, name);
}

void PictureBox::mousePressEvent(QMouseEvent* event)
{
    emit Pressed(event->button());
}
