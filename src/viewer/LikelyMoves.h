// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

// What a reader may do next that changes the pictures on show.
enum class StoryMove {
    NextParagraph,
    NextPictures,
    PreviousParagraph,
    PreviousPictures,
    ZoomOut,
    ZoomIn,
};

struct LikelyMove
{
    StoryMove move;
    int times = 1; // one after the other
};

// The most likely one first: who went one way goes on. Who hurries has taken the same step twice
// before two pictures are decoded.
std::vector<LikelyMove> LikelyMoves(StoryMove last);
