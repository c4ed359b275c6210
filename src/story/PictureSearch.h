// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/RowScan.h"
#include "story/SearchTerms.h"

#include <vector>

// The terms as a filter of the table of pictures, without isMissing; empty for any picture.
QString BuildSearchFilter(const SearchTerms& terms);

// Looks through the open album for pictures, for some time at a time. Throws DatabaseError,
// BadFilter for a value that a filter cannot hold.
class PictureSearch
{
public:
    explicit PictureSearch(const SearchTerms& terms);

    // False when all pictures have been looked at.
    bool Work(std::chrono::milliseconds time);

    // Row numbers of the pictures found so far, in the album's order.
    const std::vector<qint32>& GetFound() const { return found_; }
    int Count() const { return int(found_.size()); }

private:
    RowScan scan_;
    bool isMissing_;
    std::vector<qint32> found_;
};
