// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A paragraph's text holds placeholders for what the album knows of the picture beside it:
// "<[Picture Legend]>" for its legend and "<[n]>" for its characteristic n, 0 to 11.

// The text with every placeholder filled for the picture of that File. A picture that the album
// does not hold, or that has no value there, fills with nothing. "<[" that begins no placeholder
// stays as it is.
QString FillPictureMarkers(const QString& text, const QString& pictureFile);
