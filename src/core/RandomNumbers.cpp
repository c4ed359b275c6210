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

std::uint32_t RandomSeed()
{
    return std::uint32_t(Random()());
}

void SeedRandom(std::uint32_t seed)
{
    Random().seed(seed);
}

} // namespace GeneralModule
