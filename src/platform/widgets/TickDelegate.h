// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

// Shows the boxes that the lines of a list or tree are ticked in with an outline that stands out on
// every ground: the styles' own can hardly be seen with the colors of dark desktops.
class TickDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
