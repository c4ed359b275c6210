// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishReport.h"
#include "publish/PublishedStory.h"

#include <QPageSize>

struct BookOptions
{
    QPageSize::PageSizeId paper = QPageSize::A4; // A4, A5 or Letter
    bool isLandscape = false;
    // Of the pictures, in dots per inch; 0 passes originals through where their kind allows it.
    int resolution = 0;
};

// Writes the story as a PDF book that takes the place of target when it is whole and was checked.
// Needs a QGuiApplication. Touches no album, so that it can run in any thread. Progress counts
// pictures and is called in this thread. Throws PublishError; target is then as it was, as it is
// when progress has stopped it.
PublishReport PublishBook(const PublishedStory& story, const BookOptions& options,
                          const QString& target, const PublishProgress& progress);
