// SPDX-License-Identifier: MIT
#pragma once

#include "story/FilterValues.h"

// Chooses pictures of the album: those linked to a paragraph, and those that fit.
struct PictureQuery
{
    CarValues values = AnyValues();
    QString fileSelection{}; // a folder and patterns, as in PatternOfSelection; any if empty
    qint32 linkedTo = 0;     // the paragraph whose linked pictures are included; 0: none

    bool operator==(const PictureQuery&) const = default;
};
