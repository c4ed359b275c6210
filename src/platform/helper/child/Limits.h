// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

// What a helper may use at most. Each ends the process, or fails an allocation.

// No core file, and no more memory than that.
void LimitMemory(std::size_t bytes);

// Processor time from now on, so that neither a slow disk nor a busy machine ends the reading. When
// it is used up, a signal kills the process; called again before, it counts anew.
void LimitProcessorTime(long seconds);

// The descriptor of the standard output. What libraries print to it or to standard error from then
// on is discarded.
int TakeOutput();
