// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

// Boats float at the point given, which is the middle of their waterline; all else stands there.
void PaintRowBoat(Canvas& canvas, QPointF at, double length, const QColor& paint);
void PaintSailBoat(Canvas& canvas, QPointF at, double height, const QColor& sail);
void PaintCutter(Canvas& canvas, QPointF at, double length, const QColor& paint);
void PaintFerry(Canvas& canvas, QPointF at, double length);
void PaintKite(Canvas& canvas, QPointF at, QPointF hand, double size);
void PaintSnowman(Canvas& canvas, QPointF foot, double height);
void PaintLantern(Canvas& canvas, QPointF foot, double height);
void PaintBench(Canvas& canvas, QPointF foot, double width);
void PaintBlanket(Canvas& canvas, QPointF middle, double width);
void PaintBalloon(Canvas& canvas, QPointF basket, double height, const QColor& first,
                  const QColor& second);
void PaintParasol(Canvas& canvas, QPointF foot, double height, const QColor& cloth);
void PaintBale(Canvas& canvas, QPointF foot, double size);
void PaintFire(Canvas& canvas, QPointF foot, double height);
void PaintTent(Canvas& canvas, QPointF foot, double width);
void PaintFence(Canvas& canvas, double left, double right, double base, double height);
void PaintPier(Canvas& canvas, QPointF far, double farWidth, QPointF near, double nearWidth);
