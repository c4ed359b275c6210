// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookCheck.h"
#include "publish/book/BookLayout.h"
#include "publish/book/BookPainting.h"

// Makes the painted pages a whole book at that path: puts in the pictures, the table of contents
// into its place with its links, the outline, the title and the language. Marks the pictures of
// which nothing could be read, for which there is a gray area then. Returns what CheckBook is to
// find. Throws BookStopped and PublishError.
BookFacts WriteBookFile(const QString& path, const PublishedStory& story, PaintedBook painted,
                        const LaidOutBook& laidOut, BookPictures& pictures, int resolution,
                        BookProgress& progress);
