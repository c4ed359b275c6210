// SPDX-License-Identifier: MIT
#include "viewer/LikelyMoves.h"

std::vector<LikelyMove> LikelyMoves(StoryMove last)
{
    using enum StoryMove;
    std::vector<LikelyMove> moves{{last}, {last, 2}};
    for (const StoryMove move : {NextParagraph, NextPictures, PreviousParagraph, ZoomOut, ZoomIn}) {
        if (move != last)
            moves.push_back({move});
    }
    return moves;
}
