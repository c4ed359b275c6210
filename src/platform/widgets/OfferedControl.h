// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

// Enables a button or a menu entry where it is offered and nothing speaks against it; otherwise its
// tool tip tells the reason, until it is offered again. An empty reason is none.
template<typename Control>
void OfferUnless(Control& control, bool isOffered, const QString& reason)
{
    constexpr const char* usual = "UsualToolTip";
    if (!control.property(usual).isValid())
        control.setProperty(usual, control.toolTip());
    control.setEnabled(isOffered && reason.isEmpty());
    control.setToolTip(reason.isEmpty() ? control.property(usual).toString() : reason);
}
