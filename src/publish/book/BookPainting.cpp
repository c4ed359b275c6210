// SPDX-License-Identifier: MIT
#include "publish/book/BookPainting.h"

#include <utility>

namespace {

constexpr int pointsPerInchOfBook = 72;
constexpr QRgb bookFrameColour = 0xffa0a0a0;
constexpr QRgb bookPlaceholderColour = 0xfff2f2f2;
constexpr qreal bookFrameWidth = 0.5; // points

QRectF ToDots(const QRectF& place)
{
    return {place.topLeft() * bookDotsPerPoint, place.size() * bookDotsPerPoint};
}

} // namespace

BookPainting::BookPainting(const QPageLayout& layout) : layout_(layout), writer_(&buffer_)
{
    buffer_.open(QIODevice::WriteOnly);
    writer_.setPageLayout(layout);
    writer_.setResolution(pointsPerInchOfBook * bookDotsPerPoint);
    book_.paper = layout.fullRect(QPageLayout::Point).size();
}

void BookPainting::Add(const BookPage& page)
{
    if (painter_.isActive())
        writer_.newPage();
    else
        painter_.begin(&writer_);
    for (const QRectF& place : page.placeholders) {
        painter_.setPen(QPen(QColor::fromRgb(bookFrameColour), bookFrameWidth * bookDotsPerPoint));
        painter_.setBrush(QColor::fromRgb(bookPlaceholderColour));
        painter_.drawRect(ToDots(place));
    }
    for (const QRectF& rule : page.rules)
        painter_.fillRect(ToDots(rule), QColor::fromRgb(bookFrameColour));
    for (const BookPage::Text& each : page.texts)
        each.text->Paint(painter_, each.place, each.first, each.last);
    book_.pictures.push_back(page.pictures);
    book_.links.push_back(page.links);
}

PaintedBook BookPainting::Finish()
{
    painter_.end();
    book_.pdf = std::exchange(buffer_.buffer(), {});
    return std::move(book_);
}
