// SPDX-License-Identifier: MIT
#include "platform/widgets/ElidedLabel.h"

#include "platform/widgets/LiteralText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int widestHint = 160; // logical pixels; a text up to this width is shown whole

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::sizeHint() const
{
    return QLabel::sizeHint().boundedTo({widestHint, QWIDGETSIZE_MAX});
}

QSize ElidedLabel::minimumSizeHint() const
{
    return QLabel::minimumSizeHint().boundedTo({widestHint, QWIDGETSIZE_MAX});
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), AsToolTip(text()), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QString line = QString(text()).replace(u'\n', u' ');
    painter.drawText(contentsRect(), int(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(line, Qt::ElideMiddle, contentsRect().width()));
}
