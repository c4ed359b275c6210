// SPDX-License-Identifier: MIT
#pragma once

#include "story/PictureQuery.h"

#include <optional>

// What a person writes of a paragraph.
struct ParagraphContent
{
    QString text;                   // in stored form, see ParagraphMarkers.h
    CarValues values = AnyValues(); // which pictures it shows

    bool operator==(const ParagraphContent&) const = default;
};

struct Paragraph
{
    qint32 id = 0;
    qint32 chapter = 0; // that it belongs to, 0 for none
    ParagraphContent content;
    QString fileSelection; // pattern of its pictures' paths, see PictureQuery

    // The pictures that it shows.
    PictureQuery GetQuery() const { return {content.values, fileSelection, id}; }
};

// None when the open album holds no such paragraph. ParagraphSet stands on it otherwise. Throws
// DatabaseError, NoAlbum while no album is open.
std::optional<Paragraph> ReadParagraph(qint32 id);
