// SPDX-License-Identifier: MIT
#pragma once

#include "core/Album.h"
#include "viewer/PageContent.h"

#include <list>

// The pictures that pages list, kept for as long as the album stays the same: to look through a
// large album takes longer than to show a picture.
class FoundAhead
{
public:
    // What FindPicturesAt gives, from here where it is known. Feedback is called only by a search.
    FoundPictures Find(const StoryPosition& position, const CountFeedback& feedback);

private:
    struct Page
    {
        StoryPosition position;
        GeneralModule::AlbumVersion version;
        FoundPictures found;
    };

    void Keep(Page page);

    std::list<Page> pages_; // the one that was asked for last in front
};
