// SPDX-License-Identifier: MIT
#pragma once

#include "story/FilterValues.h"

// Which pictures of the album are meant: those linked to a paragraph, and those that fit.
struct PictureQuery
{
    CarValues values = AnyValues();
    QString fileSelection; // a folder and after it patterns, as in PatternOfSelection; any if empty
    qint32 linkedTo = 0;   // the paragraph whose linked pictures are meant too; 0: none
};
