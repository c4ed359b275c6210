// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

// A paragraph's text holds placeholders for what the album holds about the picture beside it:
// "<[Picture Legend]>" for its legend and "<[n]>" for its characteristic n, 0 to 11. The editor
// shows a marker in words instead, made of the album's labels; the labels may change between two
// edits, the stored form does not.

struct TextMarker
{
    QString stored;  // "<[4]>"
    QString display; // "<<Place (People)>>"
    QString title;   // of its contents: "Place (People)"; all differ
};

// The thirteen markers with the open album's current labels, the legend's first.
//
// Reading back what was shown gives what was stored, for every text and all labels: if a label
// would make a marker equal to another one (two columns with the same label, or none) or end it too
// early (a ">>" in it), the marker is shown in its stored form. Of columns with equal labels the
// first gets the words. Moves the current row of ParamsSet. Throws DatabaseError, NoAlbum while no
// album is open.
std::vector<TextMarker> ReadTextMarkers();

// Convert every occurrence from stored to display form and back. Anything else stays as typed.
QString ToDisplayMarkers(const QString& text, const std::vector<TextMarker>& markers);
QString ToStoredMarkers(const QString& text, const std::vector<TextMarker>& markers);

// The stored text with every placeholder filled for the picture of that File. A placeholder is
// removed when the album has no such picture, or the picture no value there. A "<[" that begins no
// placeholder stays. Moves the current row of ImageSet. Throws DatabaseError, NoAlbum while no
// album is open.
QString FillPictureMarkers(const QString& text, const QString& pictureFile);
