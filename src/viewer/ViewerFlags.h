// SPDX-License-Identifier: MIT
#pragma once

// How pictures are shown. The main window sets the first three before it opens the viewer.
namespace GeneralModule {

// True while autoview runs. Whatever pauses the timer restores it from this flag.
inline bool AutoviewOn = false;

// The next picture is taken at random from the picture list, else in list order.
inline bool PictureAtRandom = false;

// Autoview's pictures fade into each other.
inline bool SoftTransitions = false;

// How large the text below the pictures is, 1 for its usual size; counts for viewers opened later.
inline double TextScale = 1;

// Whether a page says where the reader is: in the viewer's window, and on a whole screen. As the
// user chose last.
inline bool PlaceShown = true;
inline bool PlaceShownOnWholeScreen = false;

} // namespace GeneralModule
