// SPDX-License-Identifier: MIT
#include "core/RandomNumbers.h"

#include <random>

namespace {

std::mt19937& Random()
{
    static std::mt19937 random;
    return random;
}

} // namespace

namespace GeneralModule {

int RandomBelow(int below)
{
    return below > 0 ? std::uniform_int_distribution<int>(0, below - 1)(Random()) : 0;
}

void SeedRandom(std::uint32_t seed)
{
    Random().seed(seed);
}

} // namespace GeneralModule
