// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

// A paragraph's text holds placeholders for what the album knows of the picture beside it:
// "<[Picture Legend]>" for its legend and "<[n]>" for its characteristic n, 0 to 11. Whoever writes
// sees a marker in words instead, made of labels of the album; the labels may change between two
// edits, what is stored does not.

struct TextMarker
{
    QString stored;  // "<[4]>"
    QString display; // "<<Place (People)>>"
    QString title;   // of what it stands for: "Place (People)"; each is different
};

// The thirteen markers as the open album's labels name them now, the legend's first.
//
// Reading back what was shown gives what was stored, for every text and all labels: where a label
// would make a marker that cannot be told from another one (two columns with the same label, or
// none) or that would end too early (">>" inside), the marker is shown as it is stored. Of columns
// that read the same the first gets the words.
std::vector<TextMarker> ReadTextMarkers();

// Stored form to display form and back, every occurrence. What is no marker stays as typed.
QString ToDisplayMarkers(const QString& text, const std::vector<TextMarker>& markers);
QString ToStoredMarkers(const QString& text, const std::vector<TextMarker>& markers);

// The stored text with every placeholder filled for the picture of that File. A picture that the
// album does not hold, or that has no value there, fills with nothing. "<[" that begins no
// placeholder stays as it is.
QString FillPictureMarkers(const QString& text, const QString& pictureFile);
