// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

// Does work in that many threads, each of which calls it once, and returns when the last is done.
// Meanwhile goOn is called in this thread, many times a second; once it returns false, isStopped is
// true. What a thread throws ends the others too and is thrown here. False when goOn has stopped
// it.
bool WorkAside(int threads, const std::function<void(const std::function<bool()>& isStopped)>& work,
               const std::function<bool()>& goOn);
