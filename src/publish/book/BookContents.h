// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishedStory.h"
#include "publish/book/BookFlow.h"
#include "publish/book/BookProgress.h"

// The table of contents: its pages are laid out before those that it leads to, and get their
// numbers afterwards.
class BookContents
{
public:
    // No pages for a story without chapters.
    BookContents(const PublishedStory& story, QSizeF paper, BookProgress& progress);

    int CountPages() const { return int(pages_.size()); }
    // The printed numbers of the chapters' pages.
    void Give(const std::vector<int>& numbers, const BookPageSink& sink);

private:
    void AddChapter(int chapter, const QString& title);

    struct Entry
    {
        std::size_t page;
        QPointF place; // of the number
        bool isRightToLeft;
    };

    QLocale language_;
    std::vector<BookPage> pages_;
    std::vector<Entry> entries_; // one for each chapter
    BookFlow flow_;
};
