// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace GeneralModule {

// Seeds the random numbers from the clock and makes the program's folder the current one. Called by
// the main window before it opens an album.
void InitModule();

// Path of the help file in the program's folder, in the user's language if there is one.
QString HelpFile();

// A random whole number from 0 to below - 1; 0 when below is less than 1.
int RandomBelow(int below);

// Makes a run repeatable.
void SeedRandom(std::uint32_t seed);

} // namespace GeneralModule
