// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Replaces every occurrence of find from position start on, counted from 1; upper and lower case
// differ. Replaced text is not searched again, so a replacement may contain find. An empty find
// changes nothing.
QString ReplaceText(const QString& text, const QString& find, const QString& replacement,
                    int start);

// A name for a "like" comparison: an apostrophe becomes the wildcard for one character, so that it
// does not end the quoted text.
QString LikeSafe(const QString& name);

// The text as a filter's literal: in single quotes, with quotes in it doubled.
QString Quoted(const QString& text);

} // namespace GeneralModule
