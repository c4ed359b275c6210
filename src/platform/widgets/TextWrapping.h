// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextOption>

// How an edit box has to wrap a text: between words, or anywhere where one is endless. To find a
// word's end the toolkit looks at all of it for each line, which for a megabyte takes a minute.
QTextOption::WrapMode WrapModeFor(const QString& text);
