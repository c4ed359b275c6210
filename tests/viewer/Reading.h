// SPDX-License-Identifier: MIT
#pragma once

#include "PaperSurface.h"
#include "support/AlbumFixture.h"
#include "viewer/StoryReader.h"

// A story read where there is no window and no screen.
struct Reading
{
    AlbumFixture album;
    PaperSurface paper;
    StoryReader reader{[] { return true; }};

    QStringList Shown() const { return NamesOf(paper.pictures); }
    void Begin(qint32 chapter)
    {
        reader.DrawOn(paper);
        reader.Position.chapter = chapter;
        reader.DisplayFromBeginning();
    }
};
