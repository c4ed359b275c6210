// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// Houses side by side, as on a quay or along a street; size is the usual width.
void PaintHouseRow(Canvas& canvas, double left, double right, double base, double size,
                   double distance);
// The same drawn flat and then leaned into the depth of a lane, which ends at the point; eye is the
// height of who looks.
void PaintLaneSide(Canvas& canvas, bool left, QPointF far, double eye);
// A row of which little more than the roofs is seen.
void PaintRoofs(Canvas& canvas, double base, double size, double distance);
void PaintCobbles(Canvas& canvas, double top);
