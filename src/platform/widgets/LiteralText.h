// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// For showing texts of albums and file names literally where the toolkit would interpret them.
// Texts are cut to what a screen can hold.

// A tool tip with the literal text: the toolkit takes what looks like markup for markup, and would
// open the file of an <img>.
QString AsToolTip(const QString& text);

// A part of a sentence, in one line and cut to some words; still to be escaped for markup.
QString AsPhrase(const QString& text);

// A window's title in one line; the toolkit would drop "[*]", its placeholder for a modified mark.
QString AsWindowTitle(const QString& text);
