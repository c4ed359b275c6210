// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

// Shows a number at the right edge of a list's line: the text that its item has for countRole.
class CountDelegate : public QStyledItemDelegate
{
public:
    static constexpr int countRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
