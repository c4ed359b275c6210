// SPDX-License-Identifier: MIT
#pragma once

#include "platform/helper/HelperProcess.h"

#include <QElapsedTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

// Many requests to a helper, each of which it answers by one frame, in their order. One process
// serves all; when it crashes, hangs or writes nonsense, another one goes on after the request at
// which that happened, and that one has no answer.
class HelperQueue
{
public:
    // The first frame of a helper, and its answers: the number of the request, then what it found.
    static constexpr unsigned char readyFrame = 'H';
    static constexpr unsigned char answerFrame = 'A';

    // What the helper is asked, by number, from 0. May be asked for more than once.
    using Request = std::function<QByteArray(int number)>;
    // Gets the answers, in order; contents has no value where the helper failed.
    using Visit = std::function<void(int number, std::optional<QByteArrayView> contents)>;

    // Milliseconds by the clock without a frame after which a helper counts as hung; it counts its
    // processor time by itself. A disk that sleeps takes some seconds.
    static constexpr int usualPatience = 20000;

    // Nothing is started before Work.
    HelperQueue(QString program, QStringList arguments, int count, Request request,
                int patience = usualPatience);
    ~HelperQueue();
    Q_DISABLE_COPY_MOVE(HelperQueue)

    // Takes answers for about that time. False when all have come. Throws DatabaseError CannotOpen
    // when the helper cannot be started or never becomes ready, and what visit throws.
    bool Work(std::chrono::milliseconds time, const Visit& visit);

private:
    void Start();
    void SendMore();
    void TakeFrame(const HelperProcess::Frame& frame, const Visit& visit);
    void Restart(const Visit& visit);

    QString program_;
    QStringList arguments_;
    int count_;
    Request request_;
    int patience_;
    std::unique_ptr<HelperProcess> process_;
    QElapsedTimer silence_;
    int next_ = 0; // the first request without an answer
    int sent_ = 0; // the first one that was not sent to this process
    bool isReady_ = false;
    // Answers are written at once, so that the request after the last answer is the one at fault.
    bool isCareful_ = false;
};
