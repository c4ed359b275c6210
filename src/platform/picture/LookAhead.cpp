// SPDX-License-Identifier: MIT
#include "platform/picture/LookAhead.h"

#include "platform/picture/MemoryReturn.h"

#include <exception>
#include <utility>

namespace {

// A third of a screen's frame: a key that comes meanwhile is handled before anyone notices.
constexpr std::chrono::milliseconds slice(5);

} // namespace

LookAhead::LookAhead(std::function<bool()> mayWork, QObject* parent)
    : QObject(parent), mayWork_(std::move(mayWork))
{
    connect(&timer_, &QTimer::timeout, this, &LookAhead::WorkOn);
}

LookAhead::~LookAhead()
{
    pictures_.Clear();
    GiveMemoryBack();
}

void LookAhead::Begin(std::vector<Plan> plans)
{
    plans_.assign(std::make_move_iterator(plans.begin()), std::make_move_iterator(plans.end()));
    pictures_.WantNothing();
    timer_.start(0);
}

void LookAhead::WorkOn()
{
    if (!mayWork_())
        return timer_.stop();
    if (!plans_.empty() && pictures_.HasIdleCores())
        FollowNextPlan();
    if (pictures_.Work(slice) || !plans_.empty())
        return;
    pictures_.DropUnwanted();
    GiveMemoryBack();
    timer_.stop();
}

void LookAhead::FollowNextPlan()
{
    const Plan plan = std::move(plans_.front());
    plans_.pop_front();
    try {
        pictures_.Want(plan());
    } catch (const std::exception&) {
        // Whoever goes that way is told then.
    }
}
