// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishReport.h"
#include "publish/PublishedStory.h"
#include "publish/album/TravellingAlbum.h"
#include "publish/book/PublishedBook.h"
#include "publish/pages/PublishedPages.h"

enum class PublishAs { Pages, SinglePage, Book, Album };

// How the open album's story is published: as what, where, and with which options of that kind.
struct Publication
{
    PublishAs as = PublishAs::Pages;
    QString place; // absolute: a folder for Pages and Album, else a file
    StoryChoice story{};
    PageOptions pages{};
    BookOptions book{};
    TravelOptions travel{};

    bool IsFolder() const { return as == PublishAs::Pages || as == PublishAs::Album; }
};

enum class PublishStage {
    Reading, // paragraphs of the album
    Making   // pictures
};

// Called often in the caller's thread. Returns false to stop.
using PublicationProgress = std::function<bool(PublishStage stage, int done, int total)>;

// What was at the place stays as it is until the new one is whole. Throws PublishError and
// DatabaseError.
PublishReport Publish(const Publication& publication, const PublicationProgress& progress);
