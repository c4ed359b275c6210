// SPDX-License-Identifier: MIT
#pragma once

#include "story/SearchTerms.h"

#include <optional>

// What is looked for in words, each condition on a column linked to its column (href="4"), for a
// label with rich text: "Person is Anna or Bob, and Place is not Lake". Long lists of values are
// cut. Names of columns come from the open album; throws DatabaseError.
QString FilterSentence(const SearchTerms& terms);

// The sentence with what it finds: "...: 128 pictures", or that no picture fits; without a number
// while it is being counted.
QString WithCount(const QString& sentence, std::optional<int> pictures);
