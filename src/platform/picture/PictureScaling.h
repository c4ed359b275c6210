// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QImageIOHandler>

// Gives a picture with a palette a colour, black, for every number that its pixels may hold. Files
// name more colours than they have, and what scales or converts the picture looks them up
// unchecked.
void CompletePalette(QImage& image);

// To a format that needs no conversion at each paint.
void ConvertToDraw(QImage& image);

// Scaled smoothly, in such a format and in the colours that image has. Large pictures are converted
// and scaled a band of lines at a time, so that there is never a second one of their size.
QImage ScaledToDraw(const QImage& image, QSize size);

// From the colours that its profile names to sRGB.
void ConvertToScreenColours(QImage& image);

// Done after the colours: the reader's own turn loses the profile.
void Turn(QImage& image, QImageIOHandler::Transformations turn);
