// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookPage.h"

#include <QLocale>
#include <QSizeF>

// Fills the pages of a book from the top down, and numbers them.
class BookFlow
{
public:
    // The first page that begins has that number.
    BookFlow(QSizeF paper, const QLocale& language, int firstNumber, BookPageSink sink);

    // Gives away the page before, if there is one.
    void BeginPage(bool isNumbered = true);
    void End();
    // Leaves numbers to pages that others lay out.
    void PassPages(int count) { number_ += count; }

    // Where something may stand on a page.
    const QRectF& GetArea() const { return area_; }
    // Of text that is comfortable to read.
    qreal TextWidth() const;
    BookPage& Page() { return page_; }
    int PageNumber() const { return number_; }
    qreal Top() const { return top_; }
    qreal Room() const { return area_.bottom() - top_; }
    bool IsAtTop() const { return top_ <= area_.top(); }
    void Skip(qreal height) { top_ += height; }
    // Of this page, which otherwise moves towards the middle where pictures leave room on it.
    void KeepAtTop() { isKeptAtTop_ = true; }

    // The text flows over to further pages, and leaves no single line alone where it can.
    void AddText(const std::shared_ptr<const BookText>& text, qreal left);
    void AddColumn(const std::shared_ptr<const BookText>& text);
    // One that stands elsewhere; the flow stays where it is.
    void PutText(const std::shared_ptr<const BookText>& text, QPointF place);

private:
    void PutNumber();
    void MoveToMiddle();

    QSizeF paper_;
    QLocale language_;
    BookPageSink sink_;
    QRectF area_;
    BookPage page_;
    int number_;
    bool hasPage_ = false;
    bool isKeptAtTop_ = false;
    qreal top_ = 0;
};
