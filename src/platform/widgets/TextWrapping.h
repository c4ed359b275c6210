// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextOption>

// How an edit box should wrap a text: between words, or anywhere if a word is endless. For each
// line the toolkit searches the whole rest of a word for its end, which takes a minute for a
// megabyte.
QTextOption::WrapMode WrapModeFor(const QString& text);
