// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// The small picture that a camera puts into the EXIF block of a JPEG (EXIF 2.32, 4.5.8), to be
// shown until the picture itself is decoded. Reads some kilobytes from the file's beginning.
//
// Size is the picture's own (pixels, upright). The thumbnail is turned as the file asks, and cut to
// that size's proportions where the camera has filled it up with black bars. Returns a null image
// when there is none, when it is damaged, and when its proportions tell that it is of another
// picture: a program that crops a picture may leave it as it was.
QImage ReadEmbeddedThumbnail(const QString& path, QSize size);
