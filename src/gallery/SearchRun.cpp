// SPDX-License-Identifier: MIT
#include "gallery/SearchRun.h"

#include "platform/data/DatabaseError.h"

namespace {

constexpr std::chrono::milliseconds wordPause(150);
constexpr int fewestToTell = 200; // more than the largest screen shows

} // namespace

SearchRun::SearchRun(QObject* parent) : QObject(parent) {}

void SearchRun::Begin(const SearchTerms& terms)
{
    Begin(terms, wordPause);
}

void SearchRun::BeginAtOnce(const SearchTerms& terms)
{
    Begin(terms, {});
}

void SearchRun::Begin(const SearchTerms& terms, std::chrono::milliseconds pause)
{
    search_.reset();
    told_ = 0;
    work_.Begin([this, terms](std::chrono::milliseconds time) { return Work(terms, time); }, pause);
}

bool SearchRun::Work(const SearchTerms& terms, std::chrono::milliseconds time)
{
    try {
        if (!search_)
            search_.emplace(terms);
        if (search_->Work(time)) {
            if (search_->Count() >= std::max(fewestToTell, 2 * told_)) {
                told_ = search_->Count();
                emit Found(search_->GetFound(), false);
            }
            return true;
        }
    } catch (const DatabaseError& error) {
        if (error.GetNumber() == DatabaseError::InUse)
            throw; // for the next try
        emit Failed(error.GetDescription());
        return false;
    }
    const PictureSearch done = *std::exchange(search_, std::nullopt);
    emit Found(done.GetFound(), true);
    return false;
}
