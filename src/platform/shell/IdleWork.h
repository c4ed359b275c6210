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

    // Gives up what is not done, and begins this after a pause. An exception ends it; then onFailed
    // is called, if there is one, from within the handler.
    void Begin(Slice slice, std::chrono::milliseconds pause = {},
               std::function<void()> onFailed = {});
    void Stop();
    bool IsWorking() const { return timer_.isActive(); }

private:
    void WorkOn();

    Slice slice_;
    std::function<void()> onFailed_;
    QTimer timer_;
};
