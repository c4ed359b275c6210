// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookText.h"

#include <QRectF>

#include <functional>
#include <memory>
#include <vector>

// A page of a book, laid out. Places are in points, from the top left corner.
struct BookPage
{
    struct Text
    {
        std::shared_ptr<const BookText> text;
        QPointF place;
        int first = 0; // line
        int last = 0;  // the line before which it ends
    };

    struct Picture
    {
        int picture; // in BookPictures
        QRectF place;
    };

    struct Link
    {
        QRectF place;
        int chapter;
    };

    std::vector<Text> texts{};
    std::vector<Picture> pictures{};
    std::vector<QRectF> placeholders{}; // frames, below the texts
    std::vector<QRectF> rules{};        // to be filled
    std::vector<Link> links{};
};

// Takes the pages in their order.
using BookPageSink = std::function<void(const BookPage& page)>;
