// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishedStory.h"

#include <chrono>

// Thrown when the user has stopped the making of a book. No std::exception: the library that writes
// the file turns those into errors of its own.
struct BookStopped
{
};

// How far a book is. Asks no more often than a user can tell.
class BookProgress
{
public:
    BookProgress(const PublishProgress& progress, int total) : progress_(progress), total_(total)
    {
        Ask();
    }

    // Call it every few milliseconds. Throws BookStopped.
    void Check()
    {
        constexpr std::chrono::milliseconds interval(20);
        if (std::chrono::steady_clock::now() - asked_ >= interval)
            Ask();
    }

    void Add(int pictures)
    {
        done_ += pictures;
        Ask();
    }

private:
    void Ask()
    {
        if (progress_ && !progress_(done_, total_))
            throw BookStopped();
        asked_ = std::chrono::steady_clock::now();
    }

    const PublishProgress& progress_;
    int total_;
    int done_ = 0;
    std::chrono::steady_clock::time_point asked_;
};
