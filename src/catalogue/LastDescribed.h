// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/Picture.h"

// The picture of the open album that was described last since the program began: its legend and
// values as they were saved. One without any value does not count; none while no album is open.
std::optional<Picture> LastDescribed();
// Throws NoAlbum while no album is open.
void RememberDescribed(const Picture& picture);

// The values of a column, or of its twin, that were given to pictures of the open album last, the
// latest first; a few.
QStringList RecentValues(int column);

// What is left of a picture's values when it takes those of another one that has some; it keeps its
// own where the other has none.
Picture WithValuesOf(const Picture& picture, const Picture& other);
