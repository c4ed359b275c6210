// SPDX-License-Identifier: MIT
#pragma once

#include <qpdf/QPDF.hh>

// Mends the tables by which a viewer finds and copies text (ISO 32000-1, 9.10.3). The toolkit takes
// the first character that a glyph is for: a tab for each blank, and for Arabic letters the form of
// their place in the word, which nobody searches for.
void MendTextMaps(QPDF& pdf);
