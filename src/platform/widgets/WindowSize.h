// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QWidget;

// Gives the window the size it had when it was last closed, else the proposed one, at most what the
// screen has room for; and remembers the size when it closes. Sizes are kept in the user's settings
// under the window's name, in logical pixels. The window never gets so small that its captions are
// cut off. With the first window the wheel is kept from list boxes, too.
void KeepWindowSize(QWidget* window, QSize proposed);
