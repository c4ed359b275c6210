// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// Fills everything below the line with water that mirrors what is painted above it. Calm water
// (0) shows a mirror, rough water (1) hardly shows anything.
void PaintWater(Canvas& canvas, double line, double roughness);
// The bright lane below a sun or a moon.
void PaintGlitter(Canvas& canvas, double x, double line, double spread, const QColor& color);
// The same for ice: pale, with scratches.
void PaintIce(Canvas& canvas, double line);
// Rows of waves with foam that come in to a shore.
void PaintSurf(Canvas& canvas, double line, double shore);
