// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishedStory.h"

#include <functional>

// Does work for each number from 0 to count - 1, in threads on all cores, and returns when all of
// them have ended: false when progress, which is called in the caller's thread, has stopped it.
// Long work asks goesOn and gives up when that is false. What a thread throws is thrown here, once
// the others have given up.
bool WorkInParallel(
    int count, const PublishProgress& progress,
    const std::function<void(int number, const std::function<bool()>& goesOn)>& work);
