// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// Paints scenes/NAME.xml: a list of what is painted, the farthest first. An element without a
// painter of its own is a drawing of that name. What their attributes mean:
// - x, y and other places: a sum of "20%" (of the width or the height), "-12" (units of the canvas)
//   and "near" (the height of the ridge of that id at the x);
// - "a..b": a range, from which each repetition takes its own;
// - every="330": again and again as far as the right edge;
// - when, and colours: as in a Drawing. Several colours take turns when the element is repeated.
// Throws when the file is not there or names something unknown.
void PaintScene(Canvas& canvas, const QString& name);
