// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/RowScan.h"

#include <QHash>
#include <QString>

#include <string>
#include <unordered_map>

// How many pictures of the open album have each value of a column or of its twin, as filters
// accept them in either. Counted for some time at a time; throws DatabaseError.
class ValueCounts
{
public:
    explicit ValueCounts(int column);

    // False when all pictures are counted.
    bool Work(std::chrono::milliseconds time);

    // Ignoring case; 0 until all are counted.
    int CountOf(const QString& value) const { return counts_.value(value.toCaseFolded()); }

private:
    struct Hash : std::hash<std::string_view>
    {
        using is_transparent = void;
    };

    void Count(std::string_view value);

    RowScan scan_;
    bool hasTwin_;
    std::unordered_map<std::string, int, Hash, std::equal_to<>> asWritten_; // in UTF-8
    QHash<QString, int> counts_; // by the value in folded case
};
