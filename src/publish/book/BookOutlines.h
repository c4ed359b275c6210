// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookLayout.h"

#include <qpdf/QPDF.hh>

// Adds the outline, with an entry for each chapter, and the links inside the book. Pages are in
// their final order, and so are the links of each.
void AddBookOutlines(QPDF& pdf, const std::vector<QPDFObjectHandle>& pages, qreal paperHeight,
                     const PublishedStory& story, const std::vector<BookPlace>& chapters,
                     const std::vector<std::vector<BookPage::Link>>& links);
