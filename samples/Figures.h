// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// Stands (or sits) with the feet at the point given; height is that of a grown-up.
void PaintPerson(Canvas& canvas, const Person& person, QPointF foot, double height, bool leftward);
// The picture's people side by side around the point.
void PaintPeople(Canvas& canvas, QPointF middle, double height);
