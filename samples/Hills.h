// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

#include <array>

// The line of a hill against what is behind it.
class Ridge
{
public:
    Ridge(Random& random, double base, double amplitude, double wavelength);

    double At(double x) const;

private:
    double base_;
    double amplitude_;
    std::array<double, 4> waves_;
    std::array<double, 4> phases_;
};

// Fills from the ridge down to the bottom; distance as in Mood::Far.
void PaintHill(Canvas& canvas, const Ridge& ridge, const QColor& color, double distance);
// Several layers, the last in front; trees stand on the nearer ones.
void PaintHills(Canvas& canvas, double horizon, double nearest, int layers);
void PaintMountains(Canvas& canvas, double base, double height, double distance, double snow);
// The ground in front, from the ridge to the lower edge, with strokes of grass or snow.
void PaintGround(Canvas& canvas, const Ridge& ridge);
// A way that winds from the lower edge to a point far off.
void PaintPath(Canvas& canvas, QPointF far, QPointF near, double width, const QColor& color);
void PaintFlowers(Canvas& canvas, const Ridge& ridge, int count, double size);
