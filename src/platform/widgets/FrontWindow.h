// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

// Brings the window, or the one open over it, to the front. A desktop that does not allow this
// marks the window in its task bar.
void BringToFront(QWidget* window);
