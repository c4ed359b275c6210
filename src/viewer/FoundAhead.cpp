// SPDX-License-Identifier: MIT
#include "viewer/FoundAhead.h"

#include <algorithm>

namespace {

// The page on show, its neighbours, and the one left last.
constexpr std::size_t maxPages = 4;
constexpr int maxFiles = 2 * GeneralModule::maxListed; // of all pages together; about 15 MB

} // namespace

FoundPictures FoundAhead::Find(const StoryPosition& position, const CountFeedback& feedback)
{
    // Read first: a change that comes during the search makes what was found worthless.
    const GeneralModule::AlbumVersion version = GeneralModule::GetAlbumVersion();
    pages_.remove_if([&](const Page& page) { return page.version != version; });
    const auto page = std::find_if(pages_.begin(), pages_.end(),
                                   [&](const Page& each) { return each.position == position; });
    if (page != pages_.end()) {
        pages_.splice(pages_.begin(), pages_, page);
        return page->found;
    }
    FoundPictures found = FindPicturesAt(position, feedback);
    if (!found.failure) // which may pass
        Keep({position, version, found});
    return found;
}

void FoundAhead::Keep(Page page)
{
    pages_.push_front(std::move(page));
    int files = 0;
    std::size_t pages = 0;
    pages_.remove_if([&](const Page& each) {
        files += each.found.list.Count();
        return ++pages > maxPages || (pages > 1 && files > maxFiles);
    });
}
