// SPDX-License-Identifier: MIT
#include "core/StateThinning.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace {

constexpr qint64 secondsWhole = 2 * 24 * 3600;
constexpr int daysDaily = 2 + 14;
constexpr int daysWeekly = daysDaily + 7 * 10;

bool IsOfLastDays(const QDateTime& kept, const QDateTime& now)
{
    return kept.secsTo(now) < secondsWhole;
}

// The stretch of time of which one state stays.
std::tuple<int, qint64, qint64> PeriodOf(const QDateTime& kept, const QDateTime& now)
{
    const QDate day = kept.date();
    const qint64 age = day.daysTo(now.date());
    if (age <= daysDaily)
        return {1, day.toJulianDay(), 0};
    if (age <= daysWeekly)
        return {2, day.toJulianDay() / 7, 0}; // Julian day 0 was a Monday
    return {3, day.year(), day.month()};
}

} // namespace

namespace GeneralModule {

std::vector<std::size_t> StatesToRemove(const std::vector<StateSize>& states, const QDateTime& now,
                                        qint64 limit)
{
    std::vector<std::size_t> newestFirst(states.size());
    std::iota(newestFirst.begin(), newestFirst.end(), std::size_t(0));
    std::stable_sort(newestFirst.begin(), newestFirst.end(),
                     [&](std::size_t a, std::size_t b) { return states[a].kept > states[b].kept; });
    std::vector<std::size_t> removed;
    qint64 bytes = 0;
    bool hasSound = false;
    const StateSize* last = nullptr; // that stays
    for (const std::size_t number : newestFirst) {
        const StateSize& state = states[number];
        const bool isRepeated = last && !IsOfLastDays(state.kept, now) &&
                                PeriodOf(last->kept, now) == PeriodOf(state.kept, now);
        const bool isTooMuch = bytes + state.bytes > limit;
        const bool stays = !last || (state.isSound && !hasSound);
        if (!stays && (isRepeated || isTooMuch)) {
            removed.push_back(number);
            // What is older goes as well, even if it were small enough.
            if (isTooMuch)
                bytes = limit;
            continue;
        }
        bytes += state.bytes;
        hasSound = hasSound || state.isSound;
        last = &state;
    }
    return removed;
}

} // namespace GeneralModule
