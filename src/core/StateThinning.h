// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <cstddef>
#include <vector>

namespace GeneralModule {

// An earlier state of an album, as far as it counts for which are to go.
struct StateSize
{
    QDateTime kept;
    qint64 bytes = 0;
    bool isSound = true; // known to be
};

// Which of the states are to go, by their index. All of the last two days stay, of the two weeks
// before that the last one of each day, of the ten weeks before those the last one of each week,
// and of all others the last one of each month. Where what stays takes more than limit bytes, the
// oldest go as well. The newest state and the newest sound one always stay.
std::vector<std::size_t> StatesToRemove(const std::vector<StateSize>& states, const QDateTime& now,
                                        qint64 limit);

} // namespace GeneralModule
