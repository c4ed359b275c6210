// SPDX-License-Identifier: MIT
#include "story/ChapterPlaces.h"

#include "core/AlbumChains.h"
#include "platform/data/DatabaseError.h"

#include <algorithm>

using namespace GeneralModule;

void ChapterPlaces::Read(qint32 chapter)
{
    const NoWaiting noWaiting;
    // Read first: a change that comes during the walk makes it worthless.
    const AlbumVersion version = GetAlbumVersion();
    if (chapter == chapter_ && version == version_)
        return;
    paragraphs_ = ChainOfParagraphs().Rows(FirstParagraphOf(chapter), ChainDirection::Next);
    chapter_ = chapter;
    version_ = version;
}

ChapterPlace ChapterPlaces::Find(qint32 chapter, qint32 paragraph)
{
    try {
        Read(chapter);
    } catch (const DatabaseError&) {
        return {};
    }
    const auto place = std::find(paragraphs_.begin(), paragraphs_.end(), paragraph);
    if (place == paragraphs_.end())
        return {};
    return {int(place - paragraphs_.begin()) + 1, int(paragraphs_.size())};
}
