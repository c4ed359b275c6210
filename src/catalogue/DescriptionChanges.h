// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/Picture.h"

#include <QStringList>

#include <functional>
#include <vector>

// Changing many pictures' descriptions at once: what would change is known before anything does,
// and then all of it is written or nothing. All routines throw DatabaseError, NoAlbum while no
// album is open.

// A picture of the album with its description.
struct DescribedPicture
{
    qint32 id = 0;
    QString file;
    QString copy;   // local, see core/LocalCopy.h; empty for none
    Picture record; // values as stored; "" for Null
};

// The pictures in the order in which they were added; visit returns false to stop.
void VisitDescriptions(const std::function<bool(const DescribedPicture&)>& visit);
// None when the album no longer holds the picture.
std::optional<DescribedPicture> ReadDescription(qint32 id);

// What is known of a picture elsewhere. What is not given stays as it is.
struct ImportedDescription
{
    QString file; // as the album holds it
    std::optional<QString> legend;
    std::array<std::optional<QString>, columnCount> values;
};

// What a description is to become.
struct DescriptionChange
{
    qint32 id = 0;
    QString file;
    Picture shown;
    Picture edited;
};

// How many pictures change where.
struct ChangeCounts
{
    int pictures = 0;
    int legends = 0;
    std::array<int, columnCount> values{};
    // Values that their column's table does not offer yet, each with its column.
    std::vector<std::pair<int, QString>> newValues;
};

ChangeCounts CountChanges(const std::vector<DescriptionChange>& changes);

// What is imported beside what the album holds.
struct DescriptionComparison
{
    std::vector<DescriptionChange> changes;
    int same = 0;         // pictures that are described so already
    QStringList unknown;  // files that the album does not hold
    QStringList repeated; // files that came a second time, which is not counted
};

// A value is cleaned first; an empty one counts as "-".
DescriptionComparison CompareDescriptions(const std::vector<ImportedDescription>& imported);

struct ChangeResult
{
    int pictures = 0;  // that were changed
    int conflicts = 0; // that another window changed since, where its change stays
};

// Writes the changes, and adds new values to their tables: all or nothing. Calls progress with the
// number of changes done; false stops it, with nothing changed and no value returned.
std::optional<ChangeResult> ApplyChanges(const std::vector<DescriptionChange>& changes,
                                         const std::function<bool(int done)>& progress = {});
