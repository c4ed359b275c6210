// SPDX-License-Identifier: MIT
#pragma once

#include "core/PictureList.h"
#include "story/PictureQuery.h"

#include <QString>

#include <functional>

using GeneralModule::PictureList;

// A paragraph chooses its pictures by links, by values of their characteristics, and by a pattern
// of their file names. For each characteristic it stores "*" for any value, or values joined by ";"
// one of which the picture must have; after a value "!" it must have none of them.

// Takes the first value off the list, with the ";" after it, and returns it. A view, because a
// list may be long: cutting it off the text itself would move the rest at every step.
QString NextToken(QStringView& values);

// The condition on characteristics; empty when each may have any value.
QString BuildCarFilter(const CarValues& filters);

// The same condition with the columns of the two twin groups, 3 to 5 and 6 to 8, exchanged: a
// picture may show the two subjects in either order.
QString SwapCarGroups(const QString& filter);

// The pattern of paths for a selection, which is a folder and after it patterns of file names as a
// file list takes them (FilePatterns.h). The folder stands for itself, whatever characters its name
// holds; without one any path is meant.
QString PatternOfSelection(const QString& selection);

// The whole filter but for the links: the file-name pattern and the condition in both orders; empty
// for any picture.
QString BuildPictureFilter(const PictureQuery& query);

// Called with the number of pictures found so far.
using CountFeedback = std::function<void(int)>;

// Fills the list with the pictures of the open album that the query means: linked ones first, then
// those that meet the filter, each once, at most that many in all. Calls feedback at every multiple
// of 500 and at the end. Moves ImageSet and LinkedImagesSet. Throws DatabaseError, BadFilter for a
// value that a filter cannot hold; the list then holds what was found until then.
void BuildPictureList(const PictureQuery& query, PictureList& pictures, int maximum,
                      const CountFeedback& feedback);
