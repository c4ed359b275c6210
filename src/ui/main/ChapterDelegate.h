// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

// Paints a row of the chapter list: its name, and at the right edge, in a quieter colour, what the
// row's AccessibleDescriptionRole says. A name that is too long for both is elided.
class ChapterDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    // As wide as the list makes it.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
