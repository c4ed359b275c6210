// SPDX-License-Identifier: MIT
#pragma once

#include "story/PictureQuery.h"

#include <optional>

// A filter in words, each condition linked to its column (href="4"), for a label with rich text:
// "Person is Anna or Bob, and Place is not Lake". Long lists of values are cut. Names of columns
// come from the open album; throws DatabaseError.
QString FilterSentence(const PictureQuery& query);

// The sentence with what it finds: "...: 128 pictures", or that no picture fits; without a number
// while it is being counted.
QString WithCount(const QString& sentence, std::optional<int> pictures);
