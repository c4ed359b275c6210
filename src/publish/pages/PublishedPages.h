// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishReport.h"
#include "publish/PublishedStory.h"

constexpr int proposedWebSize = 1920;

struct PageOptions
{
    int size = proposedWebSize; // longest edge of the largest picture files, in pixels
};

// Writes the story as web pages into a folder: index.html, a page for each chapter, and pictures in
// three sizes. Touches no album. Progress counts pictures. Throws PublishError, also for a folder
// that holds other files.
PublishReport PublishPages(const PublishedStory& story, const PageOptions& options,
                           const QString& folder, const PublishProgress& progress);

// The same as one page, with its pictures inside, that takes the place of target when it is whole.
PublishReport PublishSinglePage(const PublishedStory& story, const QString& target,
                                const PublishProgress& progress);
