// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// The whole sky for the mood: sun, moon, stars and the clouds that belong to the hour. The light
// comes from where `light` is, a share of the width.
void PaintBackdrop(Canvas& canvas, double horizon, double light = 0.3);
// What falls from the sky or hangs in the air, painted last.
void PaintWeather(Canvas& canvas, double horizon);
