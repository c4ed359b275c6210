// SPDX-License-Identifier: MIT
#pragma once

// How pictures are shown, whichever window shows them.
namespace GeneralModule {

// True while autoview runs. Whatever pauses the timer restores it from this flag.
extern bool AutoviewOn;

// The next picture is taken at a random place in the picture list, else in list order.
extern bool PictureAtRandom;

} // namespace GeneralModule
