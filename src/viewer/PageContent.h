// SPDX-License-Identifier: MIT
#pragma once

#include "core/PictureList.h"
#include "story/PictureFilter.h"
#include "viewer/StoryWalk.h"

#include <QString>

#include <exception>
#include <optional>

// What a page of the viewer holds before it is laid out. All of these throw DatabaseError when the
// album cannot be read.

struct PageText
{
    QString title{}; // of the window; empty leaves the one it has
    QString text{};  // before its markers are filled
    // The text that the page is divided for: an empty chapter leaves its pictures more room than
    // its text would.
    QString arrangedFor{};
};

// The paragraph's text, or an empty chapter's offer to write the first paragraph. None when the
// paragraph is not in the album.
std::optional<PageText> TextAt(const StoryPosition& position);

struct FoundPictures
{
    PictureList list;
    // Of a filter that the engine refuses, which costs a page its pictures only; list then holds
    // what was found until then.
    std::exception_ptr failure;
};

// The pictures that the position's paragraph chooses; in an empty chapter every picture.
FoundPictures FindPicturesAt(const StoryPosition& position, const CountFeedback& feedback);

// These files of the album in this order, the first maxListed.
FoundPictures ListFiles(const QStringList& files, const CountFeedback& feedback);

// At most maxCount of the pictures whose characteristics all fit imageSelection ("*": any, "-":
// not yet indexed) and whose path fits fileSelection, a folder and a pattern; empty for any path.
FoundPictures FindSelection(const QString& fileSelection, const QString& imageSelection,
                            int maxCount, const CountFeedback& feedback);
