// SPDX-License-Identifier: MIT
#include "story/FilterCounting.h"

#include "story/FilterPanel.h"

namespace {

// Who chooses one value after the other sees the count at the end.
constexpr std::chrono::milliseconds countingPause(150);

} // namespace

FilterCounting::FilterCounting(FilterPanel* panel, QObject* parent) : QObject(parent), panel_(panel)
{
    connect(panel_, &FilterPanel::ValuesChanged, this, &FilterCounting::BeginAgain);
}

void FilterCounting::BeginAgain()
{
    search_.reset();
    work_.Begin(
        [this](std::chrono::milliseconds time) {
            if (!search_)
                search_.emplace(panel_->GetTerms());
            if (search_->Work(time))
                return true;
            panel_->ShowCount(search_->Count());
            search_.reset();
            return false;
        },
        countingPause);
}
