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

void PictureBox::SetPart(const QImage& picture, const QRectF& part)
{
    picture_ = picture;
    part_ = part;
    update();
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (picture_.isNull())
        PaintUnreadable(painter);
    else
        PaintPicture(painter);
    if (hasFocus())
        PaintFocus(painter);
}

void PictureBox::PaintPicture(QPainter& painter)
{
    if (picture_.hasAlphaChannel())
        painter.fillRect(rect(), Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(rect()), picture_, part_);
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

// In two colours, of which one stands out from any picture.
void PictureBox::PaintFocus(QPainter& painter)
{
    constexpr int width = 3;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2 * width));
    painter.drawRect(rect());
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(rect().adjusted(width, width, -width - 1, -width - 1));
}

void PictureBox::mousePressEvent(QMouseEvent* event)
{
    emit Pressed(event->button());
}
