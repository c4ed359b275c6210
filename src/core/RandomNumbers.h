// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace GeneralModule {

// A number for a list to begin its random order with. The same numbers come at every start until
// SeedRandom was called.
std::uint32_t RandomSeed();

void SeedRandom(std::uint32_t seed);

} // namespace GeneralModule
