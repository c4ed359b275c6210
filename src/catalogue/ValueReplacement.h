// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

// Called with the number of rows changed so far, also when that has not increased; returns false to
// stop.
using ReplacementProgress = std::function<bool(int changed)>;

struct ReplacedValues
{
    int pictures = 0;
    int paragraphs = 0;
};

// Replaces the value old with replacement in the column and its twin of every picture, and in the
// paragraphs' filters, alone or in a list of values; a list does not get the same value twice. In
// the column's table replacement takes the place of old; if it is already there, the two become
// one. Values are compared ignoring case. Returns how many rows were changed; none, with nothing
// changed, when it was stopped. Throws DatabaseError; then nothing is changed either.
std::optional<ReplacedValues> ReplaceValue(int column, const QString& old,
                                           const QString& replacement,
                                           const ReplacementProgress& progress);
