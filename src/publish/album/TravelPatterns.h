// SPDX-License-Identifier: MIT
#pragma once

#include "publish/album/TravelContents.h"
#include "publish/album/TravelNames.h"

// Names under which the pictures go along, chosen so that the file patterns of paragraphs find them
// again. None when progress, which counts nothing, has stopped it.
std::optional<TravelNames> ChooseTravelNames(const TravelContents& contents,
                                             const PublishProgress& progress);

// The pattern for the pictures under their new names: with the new place of the folder that it
// begins with.
QString TravelPattern(const QString& pattern, TravelNames& names);
