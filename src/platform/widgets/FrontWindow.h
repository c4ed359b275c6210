// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

// Brings the window to the front, or the one that is open over it. Where the desktop lets no window
// come forward by itself, it marks the window in its task bar.
void BringToFront(QWidget* window);
