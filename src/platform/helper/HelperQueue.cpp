// SPDX-License-Identifier: MIT
#include "platform/helper/HelperQueue.h"

#include "platform/data/DatabaseError.h"

#include <algorithm>
#include <utility>

namespace {

// Requests that a helper has before it has answered them. Enough to keep it busy between two
// slices, few enough that what was sent in vain does not matter.
constexpr int maxAhead = 1024;

} // namespace

HelperQueue::HelperQueue(QString program, QStringList arguments, int count, Request request,
                         int patience)
    : program_(std::move(program)),
      arguments_(std::move(arguments)),
      count_(count),
      request_(std::move(request)),
      patience_(patience)
{
}

HelperQueue::~HelperQueue() = default;

void HelperQueue::Start()
{
    QStringList arguments = arguments_;
    if (isCareful_)
        arguments += QStringLiteral("careful");
    process_ = std::make_unique<HelperProcess>(program_, arguments);
    sent_ = next_;
    isReady_ = false;
    silence_.start();
}

void HelperQueue::SendMore()
{
    // In batches: each write wakes the helper up.
    if (sent_ < count_ && sent_ - next_ > maxAhead / 2)
        return;
    RequestBytes bytes;
    for (; sent_ < count_ && sent_ - next_ < maxAhead; ++sent_)
        bytes.Number(quint32(sent_)).Bytes(request_(sent_));
    if (!bytes.Get().isEmpty())
        process_->Send(bytes.Get());
}

void HelperQueue::TakeFrame(const HelperProcess::Frame& frame, const Visit& visit)
{
    silence_.start();
    if (frame.kind == readyFrame) {
        isReady_ = true;
        return;
    }
    FrameContents contents(frame.contents);
    if (!isReady_ || frame.kind != answerFrame || contents.Number() != quint32(next_) ||
        next_ >= sent_) {
        Restart(visit);
        return;
    }
    visit(next_++, contents.Bytes(quint32(frame.contents.size())));
    if (isCareful_ && next_ % maxAhead == 0) {
        // Past the place where the last one failed.
        isCareful_ = false;
        process_.reset();
    }
}

void HelperQueue::Restart(const Visit& visit)
{
    process_.reset();
    if (!isReady_)
        throw DatabaseError(
            DatabaseError::CannotOpen,
            DatabaseError::tr("A part of the program does not work: %1").arg(program_));
    if (isCareful_)
        visit(next_++, std::nullopt);
    isCareful_ = !isCareful_;
}

bool HelperQueue::Work(std::chrono::milliseconds time, const Visit& visit)
{
    QElapsedTimer worked;
    worked.start();
    while (next_ < count_) {
        if (!process_)
            Start();
        SendMore();
        const qint64 left = time.count() - worked.elapsed();
        const auto frame = process_->Poll(int(std::max<qint64>(left, 0)));
        if (frame)
            TakeFrame(*frame, visit);
        else if (process_->HasEnded() || silence_.elapsed() > patience_)
            Restart(visit);
        if (worked.elapsed() >= time.count())
            break;
    }
    if (next_ < count_)
        return true;
    process_.reset();
    return false;
}
