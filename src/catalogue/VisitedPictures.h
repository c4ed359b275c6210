// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <deque>
#include <utility>

// The way through a selection of pictures, by their files: the one on show, those that were shown
// before it, and those that were left by going back.
class VisitedPictures
{
public:
    bool HasPrevious() const { return !before_.empty(); }
    bool HasNext() const { return !after_.empty(); }
    // Where there are such.
    const QString& GetPrevious() const { return before_.back(); }
    const QString& GetNext() const { return after_.front(); }

    // Shows another one, which follows all others. Call it where there is no next one.
    void Show(const QString& file)
    {
        LeaveForward();
        shown_ = file;
    }
    void GoBack()
    {
        if (!shown_.isEmpty())
            after_.push_front(shown_);
        shown_ = std::move(before_.back());
        before_.pop_back();
    }
    void GoOn()
    {
        LeaveForward();
        shown_ = std::move(after_.front());
        after_.pop_front();
    }
    // The one on show is no longer in the album; then none is on show.
    void Remove() { shown_.clear(); }

    int GetNumber() const { return int(before_.size()) + 1; } // of the one on show, from 1
    int Count() const { return int(before_.size() + after_.size()) + (shown_.isEmpty() ? 0 : 1); }

private:
    void LeaveForward()
    {
        if (!shown_.isEmpty())
            before_.push_back(shown_);
    }

    std::deque<QString> before_; // the latest one last
    QString shown_;              // empty for none
    std::deque<QString> after_;  // the next one first
};
