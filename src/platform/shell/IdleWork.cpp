// SPDX-License-Identifier: MIT
#include "platform/shell/IdleWork.h"

#include "platform/data/DatabaseError.h"

#include <exception>
#include <utility>

namespace {

// A third of a screen's frame: a key that comes meanwhile is handled before anyone notices.
constexpr std::chrono::milliseconds sliceTime(5);
constexpr std::chrono::milliseconds pauseWhileInUse(500);

} // namespace

IdleWork::IdleWork(QObject* parent) : QObject(parent)
{
    connect(&timer_, &QTimer::timeout, this, &IdleWork::WorkOn);
}

void IdleWork::Begin(Slice slice, std::chrono::milliseconds pause)
{
    slice_ = std::move(slice);
    timer_.start(pause);
}

void IdleWork::Stop()
{
    timer_.stop();
}

void IdleWork::WorkOn()
{
    timer_.setInterval(0);
    const Slice slice = slice_; // a copy, because the work may begin another one
    try {
        if (!slice(sliceTime))
            timer_.stop();
    } catch (const DatabaseError& error) {
        if (error.GetNumber() == DatabaseError::InUse)
            timer_.setInterval(pauseWhileInUse);
        else
            timer_.stop();
    } catch (const std::exception&) {
        timer_.stop();
    }
}
