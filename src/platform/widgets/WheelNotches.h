// SPDX-License-Identifier: MIT
#pragma once

#include <QWheelEvent>

#include <cstdlib>

// Makes steps of the turns of a wheel: one for each notch, but one for each event at most, as a
// step takes its time. A touchpad sends small parts of a notch, and goes on by itself for a while.
class WheelNotches
{
public:
    // 1: away from the user, -1: towards the user, 0: no whole notch yet.
    int Take(const QWheelEvent& event)
    {
        const int turn = event.phase() == Qt::ScrollMomentum ? 0 : event.angleDelta().y();
        turned_ = (turn > 0) == (turned_ > 0) ? turned_ + turn : turn;
        if (std::abs(turned_) < QWheelEvent::DefaultDeltasPerStep)
            return 0;
        const int step = turned_ > 0 ? 1 : -1;
        turned_ = 0;
        return step;
    }

private:
    int turned_ = 0; // eighths of a degree
};
