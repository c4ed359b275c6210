// SPDX-License-Identifier: MIT
#pragma once

// From now on the mouse wheel changes no closed list box of the program: what it is turned over
// goes on to whatever scrolls around the box. Later calls do nothing.
void KeepWheelFromListBoxes();
