// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/EarlierScreens.h"
#include "viewer/FoundAhead.h"
#include "viewer/LikelyMoves.h"
#include "viewer/PageContent.h"
#include "viewer/PictureScreen.h"
#include "viewer/StoryWalk.h"

#include <random>
#include <vector>

class StorySurface;

// The ways from one page of a story to another.
enum class StoryWay {
    NextParagraph,
    PreviousParagraph,
    NextChapter,
    TopOfChapter,
};

StoryStep TakeStep(StoryWay way, StoryPosition& position);

// Whether the step back leads to another page. It does not from the story's beginning, nor where no
// story is read.
bool HasPageBefore(const StoryPosition& position);

// What is on show, or what would be after a move.
struct Outlook
{
    StoryStep step = StoryStep::Nothing; // the last one
    StoryPosition position;
    int lines = 1;
    PageText page;
    std::vector<ShownPicture> pictures;
    EarlierScreens earlier;
    PictureList list;   // the pictures that come after them
    std::mt19937 seeds; // each page takes one for the order of its pictures
};

// Follows moves without showing anything. What it says comes true as long as nothing else changes:
// the album, its picture files, the surface.
class Foresight
{
public:
    // Searches for pictures are kept in found.
    Foresight(const StorySurface& surface, FoundAhead& found) : surface_(surface), found_(found) {}

    // Each goes on from the outlook; its pictures are empty where the same ones would stay. They
    // move the current rows of the album's record sets and throw DatabaseError.
    void Step(Outlook& outlook, StoryWay way);
    void Move(Outlook& outlook, StoryMove move);

private:
    void Fill(Outlook& outlook);
    void GoBack(Outlook& outlook);
    ScreenShape ShapeOf(const Outlook& outlook) const;
    void Zoom(Outlook& outlook, int lines);

    const StorySurface& surface_;
    FoundAhead& found_;
};
