// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/CharacteristicModel.h"

#include <QString>

#include <array>
#include <optional>

// What is known of the pictures of the open album. The routines move the current row of ImageSet,
// and throw DatabaseError NoAlbum while no album is open.

struct Picture
{
    QString legend;
    std::array<QString, columnCount> values;

    bool operator==(const Picture&) const = default;
};

// Whether the open album has any picture, and how many. Counting reads the whole table.
bool HasPictures();
qint64 CountPictures();

// None when the album has no picture with that File.
std::optional<Picture> ReadPicture(const QString& file);

// Applies the edit of the shown record to the stored one, which another window may have changed
// since. Fields in conflict are taken from edited if prefersEdited, else from stored.
Picture MergePicture(const Picture& shown, const Picture& edited, const Picture& stored,
                     bool prefersEdited);

// Whether a field was edited here and changed differently in the album.
bool HasConflict(const Picture& shown, const Picture& edited, const Picture& stored);

// The legend and the values, so that a person can tell two versions apart.
QString DescribePicture(const Picture& record);

// The value of a column that a typed text stands for: an empty one becomes "-", one that the table
// holds in another letter case takes the table's spelling, and a new one is cleaned and added to
// the table. Throws DatabaseError.
QString StoreValue(int column, const QString& typed);

// Writes the edit of the shown record. An unchanged value stays, even one that its table no longer
// offers; an empty one becomes "-"; a new one is cleaned and added to its table, and one that the
// table holds in another letter case takes the table's spelling. Returns the record as now stored,
// or edited when the album no longer holds the picture. Settle conflicts before. Throws
// DatabaseError.
Picture StorePicture(const QString& file, const Picture& shown, const Picture& edited);

// Removes the picture from the album, after putting its file into the desktop's trash, or deleting
// it where there is none, if deleteFile is set; a missing file counts as deleted. Returns why the
// file cannot be deleted, with nothing changed; empty on success. Throws DatabaseError.
QString TakeOutPicture(const QString& file, bool deleteFile);
