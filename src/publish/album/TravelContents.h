// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishedStory.h"
#include "story/PictureQuery.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

// What of the open album goes along.

struct TravelPicture
{
    QString file;         // as the album names it
    QString absolute;     // where the album says that it lies
    QString source;       // where it is read from; there may be no file
    bool isShown = false; // by a paragraph
};

struct TravelParagraph
{
    qint32 id = 0;
    qint32 chapter = 0;
    PictureQuery query{};
    bool isReadable = true;      // else the engine refuses its filter
    std::vector<int> pictures{}; // that it shows, by their numbers
    std::size_t linked = 0;      // how many of them, at the beginning, are linked by hand
};

struct TravelContents
{
    std::vector<TravelPicture> pictures; // in the order of the album, each file once
    QHash<QString, int> numbers;         // of the pictures, by file
    std::vector<TravelParagraph> paragraphs;
};

// Without the pictures that no paragraph shows.
TravelContents OnlyShown(const TravelContents& contents);

// Progress counts paragraphs; none when it has stopped. Hold a ReadLock. Moves the record sets.
// Throws DatabaseError.
std::optional<TravelContents> ReadTravelContents(const PublishProgress& progress);
