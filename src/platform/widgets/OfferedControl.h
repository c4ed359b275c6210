// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

// Enables a button or a menu entry if it is offered and reason is empty. A reason is its tool tip
// until the next call without one.
template<typename Control>
void OfferUnless(Control& control, bool isOffered, const QString& reason)
{
    constexpr const char* usual = "UsualToolTip";
    if (!control.property(usual).isValid())
        control.setProperty(usual, control.toolTip());
    control.setEnabled(isOffered && reason.isEmpty());
    control.setToolTip(reason.isEmpty() ? control.property(usual).toString() : reason);
}
