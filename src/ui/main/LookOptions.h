// SPDX-License-Identifier: MIT
#pragma once

class QMenu;

// The submenus of the options that change how the program looks. Each fills its menu, brings the
// choice of an earlier run into force, and keeps the next one.

// How large the viewer's text is; counts from the next viewer on.
void OfferTextSizes(QMenu& menu);

// Dark, light or the desktop's colours, at once.
void OfferColors(QMenu& menu);

// The languages that the program has; counts from the next start on.
void OfferLanguages(QMenu& menu);
