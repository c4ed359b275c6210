// SPDX-License-Identifier: MIT
#pragma once

#include "core/Album.h"

#include <vector>

// A paragraph's place in its chapter, the first one 1; 0 of 0 where the chapter's links do not lead
// to it.
struct ChapterPlace
{
    int number = 0;
    int count = 0;

    bool operator==(const ChapterPlace&) const = default;
};

// Tells the places of paragraphs of the open album. The chapter asked for last is kept for as long
// as the album stays the same: a walk through 10,000 paragraphs takes some 30 milliseconds.
class ChapterPlaces
{
public:
    // Moves ParagraphSet and ChapterSet. It is only a help, so 0 of 0 also where the album cannot
    // be read at once.
    ChapterPlace Find(qint32 chapter, qint32 paragraph);

private:
    void Read(qint32 chapter);

    qint32 chapter_ = 0; // 0: none is kept
    GeneralModule::AlbumVersion version_;
    std::vector<qint32> paragraphs_; // in reading order
};
