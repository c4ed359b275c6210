// SPDX-License-Identifier: MIT
#pragma once

class QAction;

// Has the entry switch whether autoview's pictures fade into each other. The choice is kept for
// the next start; until there is one, the desktop's wish for less motion counts.
void OfferSoftTransitions(QAction& entry);
