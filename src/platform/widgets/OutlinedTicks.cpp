// SPDX-License-Identifier: MIT
#include "platform/widgets/OutlinedTicks.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int middleGrey = 128;
constexpr int ringAlpha = 130; // paler than the text, of 255

} // namespace

OutlinedTicks::OutlinedTicks(const QString& style) : QProxyStyle(style)
{
    setObjectName(style);
}

void OutlinedTicks::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if ((!isRound && element != PE_IndicatorCheckBox) ||
        qGray(option->palette.color(QPalette::Window).rgb()) >= middleGrey)
        return;
    QColor ink = option->palette.color(QPalette::WindowText);
    ink.setAlpha(ringAlpha);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(ink);
    painter->setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRound)
        painter->drawEllipse(edge);
    else
        painter->drawRoundedRect(edge, 2, 2);
    painter->restore();
}
