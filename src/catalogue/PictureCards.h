// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <span>
#include <vector>

// What a list of the open album's pictures shows of each. A picture's identifier holds as long as
// the album is open. None of these routines moves a record set; all throw DatabaseError, NoAlbum
// while no album is open.

struct PictureCard
{
    qint32 id = 0;          // 0: the album no longer holds the picture
    QString file;           // as the album holds it
    QString legend;         // may be empty
    bool isIndexed = false; // whether any characteristic is something else than "-"

    bool operator==(const PictureCard&) const = default;
};

// The engine's condition for a picture that is not indexed. Null counts as a value, as it does
// where the viewer selects such pictures; it makes the condition Null.
QString NotIndexedCondition();

// In the order in which the pictures were added.
std::vector<qint32> AllPictureIds();

// Those added after the picture with that identifier, in that order; 0 for all.
std::vector<qint32> PictureIdsAfter(qint32 id);
// Of the picture added last; 0 when there is none.
qint32 LastPictureId();

// In the order of the files; 0 for one that the album does not hold.
std::vector<qint32> PictureIdsOf(const QStringList& files);

// In the order of the identifiers.
std::vector<PictureCard> ReadPictureCards(std::span<const qint32> ids);

// Identifiers in ascending order; none is in both.
struct TextMatches
{
    std::vector<qint32> beginning;  // whose legend or file name begins with the text
    std::vector<qint32> containing; // whose legend or file name holds it elsewhere
};

// Letter case does not matter. Reads the whole table once, and nothing for an empty text.
TextMatches FindPicturesByText(const QString& text);
