// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Texts of albums and names of files, for places where the toolkit would read more into them than
// what stands there. A text of any length is cut to what a screen can hold.

// A tool tip that shows the text itself: the toolkit takes what looks like markup for markup, and
// would open whatever file an <img> in it names.
QString AsToolTip(const QString& text);

// A window's title in one line; the toolkit leaves out "[*]", its place for a mark of changes.
QString AsWindowTitle(const QString& text);
