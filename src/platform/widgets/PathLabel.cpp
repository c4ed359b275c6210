// SPDX-License-Identifier: MIT
#include "platform/widgets/PathLabel.h"

#include "platform/widgets/LiteralText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

PathLabel::PathLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

bool PathLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), AsToolTip(text()), this);
    return true;
}

void PathLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QString line = QString(text()).replace(u'\n', u' ');
    painter.drawText(contentsRect(), int(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(line, Qt::ElideMiddle, contentsRect().width()));
}
