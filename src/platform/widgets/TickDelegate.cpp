// SPDX-License-Identifier: MIT
#include "platform/widgets/TickDelegate.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int outlineAlpha = 170; // paler than the text, of 255
constexpr int boxGap = 4;         // logical pixels between the boxes of two lines

} // namespace

void TickDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (!index.data(Qt::CheckStateRole).isValid())
        return;
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QRect box = item.widget->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator,
                                                           &item, item.widget);
    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    QColor ink = item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    ink.setAlpha(outlineAlpha);
    painter->setPen(ink);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(box.adjusted(0, 0, -1, -1));
}

QSize TickDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (index.data(Qt::CheckStateRole).isValid())
        size.setHeight(std::max(
            size.height(), boxGap + option.widget->style()->pixelMetric(QStyle::PM_IndicatorHeight,
                                                                        &option, option.widget)));
    return size;
}
