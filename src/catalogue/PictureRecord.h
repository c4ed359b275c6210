// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/CharacteristicModel.h"

#include <QString>

#include <array>
#include <optional>

// What the album tells of a picture.
struct PictureRecord
{
    QString legend;
    std::array<QString, columnCount> values;

    bool operator==(const PictureRecord&) const = default;
};

// Whether the open album holds any picture, and how many: counting reads the whole table.
bool HasPictures();
qint64 CountPictures();

// None when the album holds no picture of that File.
std::optional<PictureRecord> ReadPictureRecord(const QString& file);

// What was edited of the record that was shown, laid over what is stored now: another window may
// have changed the picture meanwhile. Fields in conflict are taken from edited where prefersEdited,
// else as they are stored.
PictureRecord MergeRecord(const PictureRecord& shown, const PictureRecord& edited,
                          const PictureRecord& stored, bool prefersEdited);

// Whether a field was edited here and meanwhile changed to something else in the album.
bool HasConflict(const PictureRecord& shown, const PictureRecord& edited,
                 const PictureRecord& stored);

// For a person to tell two versions apart: the legend and the values.
QString DescribeRecord(const PictureRecord& record);

// Writes what a person made of the record that was shown. A value that was not touched stays as it
// is, also one that its table no longer offers; an empty one becomes "-"; a new one is cleaned and
// added to its table, and one that the table holds in another letter case is taken from there.
// Returns the record as it is now; edited when the album no longer holds the picture. Ask for
// conflicts before. Throws DatabaseError.
PictureRecord SavePictureRecord(const QString& file, const PictureRecord& shown,
                                const PictureRecord& edited);

// Takes the picture out of the album, and deletes its file before when that is wanted; one that is
// not there counts as deleted. Returns why the file cannot be deleted, with nothing changed then;
// empty when the picture is out of the album. Throws DatabaseError.
QString TakeOutPicture(const QString& file, bool deleteFile);
