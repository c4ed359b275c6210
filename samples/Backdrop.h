// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// The whole sky for the mood: sun, moon, stars and the clouds that belong to the hour. The light
// comes from where `light` is, a share of the width.
void PaintBackdrop(Canvas& canvas, double horizon, double light = 0.3);
// The far shore of a lake, with all the sky: mountains, wooded hills and a strip of bank.
void PaintFarShore(Canvas& canvas, double line, double light);
// What falls from the sky or hangs in the air, painted last.
void PaintWeather(Canvas& canvas, double horizon);
