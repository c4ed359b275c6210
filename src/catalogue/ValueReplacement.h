// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// Told how many rows were changed so far, also while none is found for a while.
using ReplacementProgress = std::function<void(int changed)>;

struct ReplacedValues
{
    int pictures = 0;
    int paragraphs = 0;
};

// Gives every picture that has the value old in the column, or in its twin, the value replacement
// there, and carries it through the filters of the paragraphs, alone or in a list of values; one
// that a list would then hold twice goes. Puts replacement in the place of old in the column's
// table; where the table holds it already the two become one. Compared without regard to letter
// case. Returns how many rows were changed. Throws DatabaseError; then nothing at all is changed.
ReplacedValues ReplaceValue(int column, const QString& old, const QString& replacement,
                            const ReplacementProgress& progress);
