// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/DescriptionChanges.h"

#include <QStringList>

// Descriptions as a table for spreadsheets: UTF-8 with a byte order mark, a row for each picture,
// with its file, its legend, and a column for each characteristic. All routines throw
// DatabaseError, NoAlbum while no album is open, and std::runtime_error, in words for the user, for
// a file that cannot be written or read.

// The columns' titles. A characteristic's is its label and its number, "Person [4]": twins share
// their labels.
QStringList DescriptionTitles();

// Writes the pictures of the album into a file, which takes the place of one that is there if
// replaces is set, but never that of an album. Returns their number. Nothing remains after a
// failure, nor when progress, which gets the number of pictures done, returns false; the result has
// no value then.
std::optional<int> ExportDescriptionTable(const QString& path, bool replaces,
                                          const std::function<bool(int done)>& progress = {});

struct DescriptionTable
{
    std::vector<ImportedDescription> rows;
    QStringList leftOut; // titles that fit no field of this album
};

// Reads such a table, whose columns may have been moved or left out. A title fits by its label, and
// by its number where the album has no label for that column. Values may come in any character set
// that DecodeUtf8OrWindows1252 knows.
DescriptionTable ReadDescriptionTable(const QString& path);
