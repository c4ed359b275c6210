// SPDX-License-Identifier: MIT
#include "publish/ParallelWork.h"

#include "publish/WorkAside.h"

#include <QThread>

#include <algorithm>
#include <atomic>

bool WorkInParallel(int count, const PublishProgress& progress,
                    const std::function<void(int, const std::function<bool()>&)>& work)
{
    std::atomic<int> next = 0;
    std::atomic<int> done = 0;
    const auto workThrough = [&](const std::function<bool()>& isStopped) {
        const auto goesOn = [&isStopped] { return !isStopped(); };
        for (int i = next++; i < count && goesOn(); i = next++) {
            work(i, goesOn);
            ++done;
        }
    };
    return WorkAside(std::clamp(QThread::idealThreadCount(), 1, std::max(count, 1)), workThrough,
                     [&] { return progress(done, count); });
}
