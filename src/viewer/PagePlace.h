// SPDX-License-Identifier: MIT
#pragma once

#include "story/ChapterPlaces.h"

#include <QString>

// Where a reader is: on a page, and in its chapter.
struct PagePlace
{
    ChapterPlace paragraph{}; // 0 of 0 outside the story
    int first = 0;            // of the pictures on the screen, from 1; 0 when it is empty
    int last = 0;
    int found = 0;            // pictures of the page, whether their files are there or not
    bool isSelection = false; // whose pictures Tab leads to
    int missing = 0;          // those passed over so far because their files are not there
};

// As a person reads it; empty where there is nothing to say.
QString Describe(const PagePlace& place);
