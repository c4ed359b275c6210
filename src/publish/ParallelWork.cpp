// SPDX-License-Identifier: MIT
#include "publish/ParallelWork.h"

#include <QThread>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace {

constexpr std::chrono::milliseconds look(20); // between two calls of progress

struct SharedWork
{
    std::atomic<int> next = 0;
    std::atomic<int> done = 0;
    std::atomic<bool> isStopped = false;
    std::mutex mutex; // guards what follows
    std::condition_variable ended;
    int working = 0;
    std::exception_ptr failure;
};

} // namespace

bool WorkInParallel(int count, const PublishProgress& progress,
                    const std::function<void(int, const std::function<bool()>&)>& work)
{
    SharedWork shared;
    const auto run = [&] {
        const auto goesOn = [&shared] { return !shared.isStopped; };
        try {
            for (int i = shared.next++; i < count && goesOn(); i = shared.next++) {
                work(i, goesOn);
                ++shared.done;
            }
        } catch (...) {
            shared.isStopped = true;
            const std::lock_guard lock(shared.mutex);
            shared.failure = std::current_exception();
        }
        const std::lock_guard lock(shared.mutex);
        --shared.working;
        shared.ended.notify_one();
    };
    std::vector<std::thread> threads;
    const int wanted = std::clamp(QThread::idealThreadCount(), 1, std::max(count, 1));
    shared.working = wanted;
    threads.reserve(std::size_t(wanted));
    for (int i = 0; i < wanted; ++i)
        threads.emplace_back(run);
    bool goesOn = true;
    for (bool isWorking = true; isWorking;) {
        goesOn = goesOn && progress(shared.done, count);
        if (!goesOn)
            shared.isStopped = true;
        std::unique_lock lock(shared.mutex);
        shared.ended.wait_for(lock, look, [&shared] { return shared.working == 0; });
        isWorking = shared.working > 0;
    }
    for (std::thread& thread : threads)
        thread.join();
    if (shared.failure)
        std::rethrow_exception(shared.failure);
    return goesOn;
}
