// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>

#include <vector>

// Where the pictures of one screen of a book stand.
struct BookRows
{
    std::vector<QRectF> places; // without the legends
    std::vector<int> rows;      // of each picture, from 0 on
    qreal height = 0;           // with the room for legends
    qreal area = 0;             // that the pictures cover
};

// Puts pictures into rows that are as wide as the area, in their order; the pictures of a row share
// their height and bottom edge, so far as they are not larger than in their natural sizes. The
// number of rows is the one that shows the most of the pictures. Below each row there is room for
// legends. Sizes are positive, at least one.
BookRows ArrangeRows(const std::vector<QSizeF>& natural, QSizeF area, qreal gap, qreal legends);
