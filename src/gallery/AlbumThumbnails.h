// SPDX-License-Identifier: MIT
#pragma once

#include "gallery/ThumbnailStore.h"

// What a store of thumbnails needs to know of the open album. Nothing is done while isSeen says no.
ThumbnailStore::Surroundings SurroundingsInAlbum(const std::function<bool()>& isSeen);
