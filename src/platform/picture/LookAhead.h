// SPDX-License-Identifier: MIT
#pragma once

#include "platform/picture/ReadyPictures.h"

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>

// Makes pictures ready while the user looks at others: in slices of a few milliseconds, between
// which every event is handled, and not at all once everything is ready.
class LookAhead : public QObject
{
public:
    // Gives the pictures that may be shown next in one of the possible ways. A plan that throws
    // an exception gives none.
    using Plan = std::function<std::vector<PictureRequest>()>;

    // Nothing is done while mayWork says no; it begins again with the next plans.
    explicit LookAhead(std::function<bool()> mayWork, QObject* parent = nullptr);
    ~LookAhead() override;

    // See ReadyPictures.
    void SetRoom(QSize screen, int count) { pictures_.SetRoom(screen, count); }

    // From now on these are made ready, the first one first. What is ready and in none of them is
    // given up.
    void Begin(std::vector<Plan> plans);
    bool IsWorking() const { return timer_.isActive(); }

    // The pictures to be shown now, null for an unreadable one; decodes what is not ready.
    std::vector<QImage> Take(const std::vector<PictureRequest>& requests)
    {
        return pictures_.Take(requests);
    }

private:
    void WorkOn();
    void FollowNextPlan();

    ReadyPictures pictures_;
    std::deque<Plan> plans_; // not yet looked at
    std::function<bool()> mayWork_;
    QTimer timer_;
};
