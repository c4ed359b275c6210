// SPDX-License-Identifier: MIT
#include "platform/widgets/CountDelegate.h"

#include <QPainter>

namespace {

constexpr int countGap = 6; // logical pixels, on both sides of a number

} // namespace

void CountDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    const QString count = index.data(countRole).toString();
    const int width = count.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(count);
    QStyleOptionViewItem value = option;
    const bool isMirrored = option.direction == Qt::RightToLeft;
    const int room = width > 0 ? width + 2 * countGap : 0;
    value.rect.adjust(isMirrored ? room : 0, 0, isMirrored ? 0 : -room, 0);
    TickDelegate::paint(painter, value, index);
    painter->setPen(option.palette.color(QPalette::Disabled, QPalette::Text));
    painter->drawText(option.rect.adjusted(countGap, 0, -countGap, 0),
                      int(Qt::AlignVCenter) | int(isMirrored ? Qt::AlignLeft : Qt::AlignRight),
                      count);
}
