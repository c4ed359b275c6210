// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

// Work that is done while nothing else is to do, in slices of a few milliseconds, between which
// every event is handled.
class IdleWork : public QObject
{
public:
    // Works for about that time; false when everything is done.
    using Slice = std::function<bool(std::chrono::milliseconds)>;

    explicit IdleWork(QObject* parent = nullptr);

    // Gives up what is not done, and begins this after a pause. A slice that throws DatabaseError
    // InUse is tried again half a second later, since another program has the album locked; any
    // other exception ends the work.
    void Begin(Slice slice, std::chrono::milliseconds pause = {});
    void Stop();
    bool IsWorking() const { return timer_.isActive(); }

private:
    void WorkOn();

    Slice slice_;
    QTimer timer_;
};
