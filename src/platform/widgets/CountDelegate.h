// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/TickDelegate.h"

// Shows a number at the right edge of a list's line: the text that its item has for countRole.
class CountDelegate : public TickDelegate
{
public:
    static constexpr int countRole = Qt::UserRole + 1;

    using TickDelegate::TickDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
