// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

// The size, in pixels, of a picture in a square of that side. Never larger than the picture, as the
// standard of the desktop's store asks.
inline QSize FittedInto(int side, QSize size)
{
    if (size.width() > side || size.height() > side)
        size.scale(side, side, Qt::KeepAspectRatio);
    return size.expandedTo({1, 1});
}

inline QImage ShrunkInto(int side, const QImage& image)
{
    const QSize size = FittedInto(side, image.size());
    if (size == image.size())
        return image;
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
