// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishedStory.h"
#include "publish/book/BookPage.h"
#include "publish/book/BookPictures.h"
#include "publish/book/BookProgress.h"

#include <QSizeF>

// Where a chapter begins.
struct BookPlace
{
    int page = 0; // from 0 on
    qreal top = 0;
};

struct LaidOutBook
{
    int contentsPages = 0;
    std::vector<BookPlace> chapters{};
};

// Lays out the story on paper of that size (points). The sink gets the title page, the chapters,
// and then the pages of the table of contents, whose place is after the title page: only then are
// their numbers known, and no more than one page has to be held. Throws BookStopped.
LaidOutBook LayOutBook(const PublishedStory& story, QSizeF paper, BookPictures& pictures,
                       const BookPageSink& sink, BookProgress& progress);
