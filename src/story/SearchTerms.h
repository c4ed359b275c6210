// SPDX-License-Identifier: MIT
#pragma once

#include "story/PictureQuery.h"

// What pictures are looked for by; all of it must fit.
struct SearchTerms
{
    PictureQuery query{};
    // Each word must occur in the legend, the file's path or a value, in any letter case.
    QString words{};
    QString folder{}; // with the folders in it; any if empty
    bool isNotIndexed = false;
    bool isMissing = false; // the file is not there

    bool operator==(const SearchTerms&) const = default;
};
