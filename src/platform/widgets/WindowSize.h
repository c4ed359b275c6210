// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QWidget;

// Gives the window the size that it had when last closed, else the proposed one, limited to the
// screen, and remembers the size when the window closes. Sizes are kept in the user's settings
// under the window's name, in logical pixels. The window never gets so small that its captions are
// cut off. Also keeps the wheel from list boxes.
void KeepWindowSize(QWidget* window, QSize proposed);
