// SPDX-License-Identifier: MIT
#pragma once

#include "publish/album/TravelContents.h"
#include "publish/album/TravelNames.h"

#include <QStringList>

// Makes of a copy of the open album's file one that goes along.
struct AlbumRewriting
{
    QString copy; // its path; nobody else has it open
    const TravelContents& contents;
    const QStringList& names; // of the pictures in the copy, by their numbers
    TravelNames& folders;
};

// Gives the pictures, links and file patterns of the copy their new names, all or nothing, and
// proves for each paragraph that it shows the same pictures as before. Where a pattern cannot be
// kept, those that it found are linked by hand. Pictures that are not among the contents are taken
// out, and what names folders of this computer is too. Returns what could not be kept, for the user
// to read; none when progress, which counts paragraphs, has stopped it. Throws DatabaseError.
std::optional<QStringList> RewriteAlbum(const AlbumRewriting& rewriting,
                                        const PublishProgress& progress);
