// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace GeneralModule {

// First thing at start: seeds the random numbers from the clock, sets the help file and makes the
// program's folder the current one.
void InitModule();

// Path of the help file, in the program's folder; the one in the user's language where there is
// one.
QString HelpFile();

// A random whole number from 0 to below - 1; 0 when below is less than 1.
int RandomBelow(int below);

// For a run that can be repeated.
void SeedRandom(std::uint32_t seed);

} // namespace GeneralModule
