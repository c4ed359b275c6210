// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// The air and what is in it, painted before the land.
void PaintSky(Canvas& canvas, double horizon);
void PaintSun(Canvas& canvas, QPointF center, double radius);
void PaintMoon(Canvas& canvas, QPointF center, double radius);
void PaintStars(Canvas& canvas, int count, double lowest);
void PaintMilkyWay(Canvas& canvas, double lowest);
// Heaped clouds of fine days; size is the usual width.
void PaintClouds(Canvas& canvas, int count, double highest, double lowest, double size);
// Long thin clouds of mornings and evenings.
void PaintStreaks(Canvas& canvas, int count, double highest, double lowest);
void PaintStormClouds(Canvas& canvas, double lowest);
// One flash, downwards from the point.
void PaintLightning(Canvas& canvas, QPointF from, double height);
void PaintBirds(Canvas& canvas, int count, QPointF center, double spread);

// Painted over the land.
void PaintMist(Canvas& canvas, double middle, double thickness, double strength);
void PaintRain(Canvas& canvas, int count);
void PaintSnowfall(Canvas& canvas, int count);
