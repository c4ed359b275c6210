// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

#include <array>

enum class Roof { Gable, Steps, Eaves };

struct House
{
    double left = 0;
    double base = 0;
    double width = 150;
    double eaves = 220;
    double top = 100;
    QColor wall;
    QColor roof;
    Roof form = Roof::Gable;
};

void PaintHouse(Canvas& canvas, const House& house, double distance);
// Houses side by side, as on a quay or along a street.
void PaintHouseRow(Canvas& canvas, double left, double right, double base, double size,
                   double distance);
void PaintChurch(Canvas& canvas, QPointF foot, double height, double distance);
void PaintLighthouse(Canvas& canvas, QPointF foot, double height, bool burning);
void PaintWindmill(Canvas& canvas, QPointF foot, double height);
void PaintBridge(Canvas& canvas, double left, double right, double deck, double water, int arches);
void PaintStreetLamp(Canvas& canvas, QPointF foot, double height);
void PaintStall(Canvas& canvas, QPointF foot, double width, const QColor& cloth);
void PaintCobbles(Canvas& canvas, double top);
void PaintSmoke(Canvas& canvas, QPointF from, double size);
