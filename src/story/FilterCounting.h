// SPDX-License-Identifier: MIT
#pragma once

#include "platform/shell/IdleWork.h"
#include "story/PictureSearch.h"

#include <QObject>

#include <optional>

class FilterPanel;

// Tells in a panel how many pictures its filter finds, counted while nothing else is to do. One
// that cannot be counted gets no number.
class FilterCounting : public QObject
{
public:
    FilterCounting(FilterPanel* panel, QObject* parent);

    // To be called when something other than the panel's values has changed.
    void BeginAgain();

private:
    FilterPanel* panel_;
    IdleWork work_;
    std::optional<PictureSearch> search_;
};
