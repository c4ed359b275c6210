// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// Straight stems from the ground up out of the picture, paler with distance; layer 0 is the
// farthest, 4 the nearest. All of these leave the middle open.
void PaintStems(Canvas& canvas, int layer, double ground);
// Conifers under snow.
void PaintSnowyRow(Canvas& canvas, int layer, double ground);
// Leaves that hang into the picture from above.
void PaintCanopy(Canvas& canvas, int layer);
// One of three wooded slopes below mountains, 2 the nearest.
void PaintWoods(Canvas& canvas, int layer, double base);
// Rows of fruit trees to both sides of a way.
void PaintOrchard(Canvas& canvas);
// Leaves on the ground, larger near by.
void PaintLitter(Canvas& canvas, int count, double top);
// The air of a forest, bright in its middle.
void PaintClearing(Canvas& canvas, double ground);
// Light that falls through leaves down to the end.
void PaintBeams(Canvas& canvas, double end);
