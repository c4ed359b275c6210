// SPDX-License-Identifier: MIT
#include "publish/WorkAside.h"

#include <QThreadPool>

#include <atomic>
#include <exception>
#include <mutex>

bool WorkAside(int threads, const std::function<void(const std::function<bool()>& isStopped)>& work,
               const std::function<bool()>& goOn)
{
    constexpr int interval = 10; // milliseconds
    std::atomic<bool> isEnded = false;
    std::mutex mutex;
    std::exception_ptr failure;
    const std::function<bool()> isStopped = [&isEnded] { return isEnded.load(); };
    QThreadPool pool; // a separate one cannot be blocked by other work
    pool.setMaxThreadCount(threads);
    for (int i = 0; i < threads; ++i) {
        pool.start([&] {
            try {
                work(isStopped);
            } catch (...) {
                const std::lock_guard guard(mutex);
                if (!failure)
                    failure = std::current_exception();
                isEnded = true;
            }
        });
    }
    bool mayGoOn = goOn();
    try {
        while (!pool.waitForDone(interval)) {
            mayGoOn = mayGoOn && goOn();
            if (!mayGoOn)
                isEnded = true;
        }
    } catch (...) {
        isEnded = true;
        pool.waitForDone();
        throw;
    }
    if (failure)
        std::rethrow_exception(failure);
    return mayGoOn;
}
