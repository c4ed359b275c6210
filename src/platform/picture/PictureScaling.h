// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QImageIOHandler>

// Extends a picture's palette with black to every index that a pixel can hold. Pixels may use more
// colours than the file has, and scaling and converting look them up unchecked.
void CompletePalette(QImage& image);

// Converts to a format that needs no conversion at each paint.
void ConvertToDraw(QImage& image);

// Scaled smoothly, in such a format and in the image's own colour space. Large pictures are
// converted and scaled a band of lines at a time, so that there is never a second one of their
// size.
QImage ScaledToDraw(const QImage& image, QSize size);

// Converts from the colour space of the image's profile to sRGB.
void ConvertToScreenColours(QImage& image);

// Called after the colours are converted: the reader's own turn loses the profile.
void Turn(QImage& image, QImageIOHandler::Transformations turn);
