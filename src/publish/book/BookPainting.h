// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookPage.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>

#include <vector>

// Pages as a PDF file without the pictures, which BookFile adds, and what it needs for that. The
// toolkit's writer would compress every picture once more.
struct PaintedBook
{
    QByteArray pdf;
    QSizeF paper;                                           // points
    std::vector<std::vector<BookPage::Picture>> pictures{}; // of each page
    std::vector<std::vector<BookPage::Link>> links{};
};

class BookPainting
{
public:
    explicit BookPainting(const QPageLayout& layout);

    void Add(const BookPage& page);
    PaintedBook Finish();

private:
    QPageLayout layout_;
    QBuffer buffer_;
    QPdfWriter writer_;
    QPainter painter_;
    PaintedBook book_;
};
