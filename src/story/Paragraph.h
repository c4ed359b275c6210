// SPDX-License-Identifier: MIT
#pragma once

#include "story/PictureQuery.h"

#include <optional>

// What a person edits of a paragraph.
struct ParagraphContent
{
    QString text;                   // in stored form, see ParagraphMarkers.h
    CarValues values = AnyValues(); // which pictures it shows

    bool operator==(const ParagraphContent&) const = default;
};

struct Paragraph
{
    qint32 id = 0;
    qint32 chapter = 0; // its chapter, 0 for none
    ParagraphContent content;
    QString fileSelection; // pattern of picture paths, see PictureQuery

    // The pictures that it shows.
    PictureQuery GetQuery() const { return {content.values, fileSelection, id}; }
};

// None when the open album has no such paragraph; otherwise moves ParagraphSet to it. Throws
// DatabaseError, NoAlbum while no album is open.
std::optional<Paragraph> ReadParagraph(qint32 id);
