// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/CharacteristicModel.h"

#include <QString>

#include <chrono>
#include <optional>
#include <unordered_map>
#include <vector>

// What a group of pictures of the open album has in common, and a change of all of them.

// The texts of one field, the most frequent first, each with the number of pictures that have it.
struct GroupField
{
    struct Text
    {
        QString text;
        int pictures = 0;

        bool operator==(const Text&) const = default;
    };
    std::vector<Text> texts;

    // Whether all pictures have the same.
    bool IsCommon() const { return texts.size() == 1; }
    // Those that differ with their numbers, cut after some: "Anna (5), Bob (2)".
    QString InWords() const;
};

struct GroupDescription
{
    int pictures = 0;
    std::array<GroupField, columnCount> columns;
    GroupField legend;
};

// Reads the descriptions of a group, for some time at a time.
class GroupReading
{
public:
    explicit GroupReading(std::vector<qint32> pictures) : pictures_(std::move(pictures)) {}

    // False when all are read. Throws DatabaseError, InUse at once where another program has the
    // album locked; the next call goes on.
    bool Work(std::chrono::milliseconds time);
    // Of the pictures read so far. One that is no longer in the album does not count.
    GroupDescription GetDescription() const;

private:
    using Counts = std::unordered_map<std::string, int>; // by text in UTF-8

    std::vector<qint32> pictures_;
    std::size_t next_ = 0;
    int found_ = 0;
    std::array<Counts, columnCount + 1> counts_; // of the columns, then of the legend
};

// Those of the pictures whose files lie in the same folder as that one's; none where the album does
// not hold it. Throws DatabaseError.
std::vector<qint32> PicturesOfFolderOf(qint32 picture, const std::vector<qint32>& pictures);

// Those of the pictures that have the same values in all columns as that one; none where the album
// does not hold it. Throws DatabaseError.
std::vector<qint32> PicturesWithValuesOf(qint32 picture, const std::vector<qint32>& pictures);

// A change of some fields; the others stay as each picture has them.
struct GroupChange
{
    enum class LegendWay { Replace, PutBefore, PutAfter };

    std::array<std::optional<QString>, columnCount> values;
    std::optional<QString> legend;
    LegendWay legendWay = LegendWay::Replace;

    bool IsEmpty() const;
};

// Makes the change in all of these pictures together, all or none, with new values added to their
// tables as StorePicture does. Returns the values as they were stored. Throws DatabaseError.
GroupChange ApplyToGroup(const std::vector<qint32>& pictures, const GroupChange& change);
