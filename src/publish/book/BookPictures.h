// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishReport.h"
#include "publish/PublishedStory.h"
#include "publish/book/BookJpeg.h"

#include <QHash>
#include <QSizeF>

#include <optional>
#include <vector>

// The pictures of a book: each file once, however often it is shown.

enum class BookPictureState { Good, Missing, Damaged };

struct BookPicture
{
    QString file; // as the album knows it
    QString path;
    BookPictureState state = BookPictureState::Good;
    QSize size{};                    // pixels, upright
    std::optional<JpegFacts> jpeg{}; // of a file that a book can show unchanged
    QSizeF largest{};                // points; in which it stands in the book
    int uses = 0;                    // among the story's pictures

    bool IsGood() const { return state == BookPictureState::Good; }
};

// How a picture gets into the book.
struct BookEncoding
{
    QSize size;    // pixels; upright, but as in the file where it is passed through
    bool isPassed; // the file's own bytes
};

class BookPictures
{
public:
    // The number of a picture. Reads the file's header when it is new.
    int Find(const PublishedPicture& picture);
    // The same for one of the story's pictures in its turn, which is counted.
    int Use(const PublishedPicture& picture);
    BookPicture& At(int picture) { return pictures_[std::size_t(picture)]; }
    const BookPicture& At(int picture) const { return pictures_[std::size_t(picture)]; }
    int Count() const { return int(pictures_.size()); }
    // That stands in the book in that size, in points.
    void Show(int picture, QSizeF size);

    // Those that are neither missing nor damaged, and the names of the others.
    void Report(PublishReport& report) const;

private:
    std::vector<BookPicture> pictures_;
    QHash<QString, int> numbers_;
};

// For a good picture that is shown; resolution as in BookOptions.
BookEncoding EncodingOf(const BookPicture& picture, int resolution);
