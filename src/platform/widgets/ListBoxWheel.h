// SPDX-License-Identifier: MIT
#pragma once

// From now on the mouse wheel does not change closed list boxes: it scrolls the area around them
// instead. Later calls do nothing.
void KeepWheelFromListBoxes();
