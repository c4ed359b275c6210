// SPDX-License-Identifier: MIT
#pragma once

#include "publish/book/BookPictures.h"
#include "publish/book/BookProgress.h"

#include <QByteArray>

#include <atomic>
#include <future>
#include <map>
#include <vector>

// The pictures of a book that are made anew, as JPEG: on all cores, a few ahead of the one that is
// asked for.
class BookDecoding
{
public:
    // The pictures in the order in which they will be asked for.
    BookDecoding(const BookPictures& pictures, const std::vector<int>& order, int resolution,
                 BookProgress& progress);
    ~BookDecoding();
    Q_DISABLE_COPY_MOVE(BookDecoding)

    const BookEncoding& GetEncoding(int picture) const { return encodings_.at(picture); }

    struct Result
    {
        QByteArray jpeg; // in the size of the encoding
        bool isDamaged;  // nothing could be read: a gray area
    };
    // Also of one that should be passed through and cannot, in the file's own direction and
    // colours. Throws BookStopped.
    Result Take(int picture);

private:
    Result Make(int picture) const;
    void Start(int picture);
    void StartAhead(std::size_t place);

    const BookPictures& pictures_;
    std::vector<int> order_;
    std::map<int, std::size_t> places_; // in the order, of those made anew
    std::map<int, BookEncoding> encodings_;
    BookProgress& progress_;
    std::atomic<bool> isStopped_ = false;
    std::map<int, std::future<Result>> started_;
};
