// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookFlow.h"
#include "publish/book/BookPictures.h"
#include "publish/book/BookProgress.h"
#include "publish/book/BookRows.h"

// Pictures that stand on one page, with their legends.
class BookScreen
{
public:
    // Uses the pictures. A legend that says no more than the paragraph's text is left out.
    BookScreen(const std::vector<PublishedPicture>& shown, const QString& text,
               BookPictures& pictures, qreal width, BookProgress& progress);

    // In that height or less, with legends that have room in two lines.
    BookRows Arrange(qreal height) const;

    // At the flow's place, which then is below them.
    void Put(BookFlow& flow, const BookRows& rows) const;

private:
    struct Shown
    {
        int picture;
        BookPictureState state;
        QString file;
        QString legend;
    };

    std::shared_ptr<const BookText> LegendOf(const BookRows& rows, std::size_t picture) const;
    void PutPlaceholder(BookFlow& flow, const Shown& shown, const QRectF& place) const;

    qreal width_;
    std::vector<Shown> shown_;
    std::vector<QSizeF> natural_;
    bool hasLegends_ = false;
};
