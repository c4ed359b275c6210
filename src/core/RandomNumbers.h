// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace GeneralModule {

// A random whole number from 0 to below - 1; 0 when below is less than 1. The same numbers come at
// every start until SeedRandom was called.
int RandomBelow(int below);

void SeedRandom(std::uint32_t seed);

} // namespace GeneralModule
