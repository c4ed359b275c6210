// SPDX-License-Identifier: MIT
#include "platform/widgets/ElidedLabel.h"

#include "platform/widgets/LiteralText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(QStringLiteral("mmm")),
            QLabel::minimumSizeHint().height()};
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
