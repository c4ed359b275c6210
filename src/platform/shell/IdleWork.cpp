// SPDX-License-Identifier: MIT
#include "platform/shell/IdleWork.h"

#include <exception>
#include <utility>

namespace {

// A third of a screen's frame: a key that comes meanwhile is handled before anyone notices.
constexpr std::chrono::milliseconds sliceTime(5);

} // namespace

IdleWork::IdleWork(QObject* parent) : QObject(parent)
{
    connect(&timer_, &QTimer::timeout, this, &IdleWork::WorkOn);
}

void IdleWork::Begin(Slice slice, std::chrono::milliseconds pause, std::function<void()> onFailed)
{
    slice_ = std::move(slice);
    onFailed_ = std::move(onFailed);
    timer_.start(pause);
}

void IdleWork::Stop()
{
    timer_.stop();
}

void IdleWork::WorkOn()
{
    timer_.setInterval(0);
    // Copies, because the work may begin another one.
    const Slice slice = slice_;
    const auto onFailed = onFailed_;
    try {
        if (slice(sliceTime))
            return;
        timer_.stop();
    } catch (const std::exception&) {
        timer_.stop();
        if (onFailed)
            onFailed();
    }
}
