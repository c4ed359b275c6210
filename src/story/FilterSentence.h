// SPDX-License-Identifier: MIT
#pragma once

#include "story/SearchTerms.h"

#include <array>
#include <optional>

// One for each characteristic.
using ColumnTexts = std::array<QString, columnCount>;

// What is looked for in words, each condition on a column linked to its column (href="4"), for a
// label with rich text: "Person is Anna or Bob, and Place is not Lake". Long lists of values are
// cut.
QString FilterSentence(const SearchTerms& terms, const ColumnTexts& titles);

// The sentence with what it finds: "...: 128 pictures", or that no picture fits; without a number
// while it is being counted.
QString WithCount(const QString& sentence, std::optional<int> pictures);
