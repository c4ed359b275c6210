// SPDX-License-Identifier: MIT
#pragma once

#include "core/PictureList.h"
#include "story/PictureQuery.h"

#include <QString>

#include <functional>

using GeneralModule::PictureList;

// A paragraph chooses its pictures by links, by values of their characteristics, and by a pattern
// of their file names. For each characteristic it stores "*" for any value, or values separated by
// ";". The picture must have one of them, or, after a value "!", none of them.

// The condition on characteristics; empty when each may have any value.
QString BuildCarFilter(const CarValues& filters);

// The same condition with the columns of the two twin groups, 3 to 5 and 6 to 8, exchanged: a
// picture may have its two subjects in either order.
QString SwapCarGroups(const QString& filter);

// The pattern of paths for a selection: a folder followed by file name patterns (FilePatterns.h).
// The folder is taken literally; without one the patterns apply to any path.
QString PatternOfSelection(const QString& selection);

// The whole filter except the links: the file name pattern and the condition in both orders; empty
// for any picture.
QString BuildPictureFilter(const PictureQuery& query);

// Called with the number of pictures found so far.
using CountFeedback = std::function<void(int)>;

// Fills the list with the open album's pictures for the query: linked ones first, then those that
// meet the filter, each once, no more than maximum. Calls feedback at every multiple of 500 and at
// the end. Moves ImageSet and LinkedImagesSet. Throws DatabaseError, BadFilter for a value that a
// filter cannot hold; the list then holds what was found so far.
void BuildPictureList(const PictureQuery& query, PictureList& pictures, int maximum,
                      const CountFeedback& feedback);
