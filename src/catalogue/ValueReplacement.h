// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

// Told how many rows were changed so far, also while none is found for a while.
using ReplacementProgress = std::function<void(int changed)>;

// Gives every picture and every paragraph that has the value old in the column, or in its twin, the
// value replacement there, and puts replacement in the place of old in the column's table; where
// the table holds it already the two become one. Compared without regard to letter case. Throws
// DatabaseError; then nothing at all is changed.
void ReplaceValue(int column, const QString& old, const QString& replacement,
                  const ReplacementProgress& progress);
