// SPDX-License-Identifier: MIT
#pragma once

#include "Hills.h"

// Each stands with its foot at the point given.
void PaintLeafTree(Canvas& canvas, QPointF foot, double height, const QColor& leaf,
                   double distance);
void PaintBareTree(Canvas& canvas, QPointF foot, double height, double distance);
void PaintConifer(Canvas& canvas, QPointF foot, double height, double distance);
// The tree that suits the season: in leaf, in blossom, coloured or bare.
void PaintTree(Canvas& canvas, QPointF foot, double height, double distance);
// Small trees along a ridge, in groups with gaps.
void PaintTreeLine(Canvas& canvas, const Ridge& ridge, double size, double distance);
void PaintBush(Canvas& canvas, QPointF foot, double size, double distance);
void PaintReeds(Canvas& canvas, QPointF foot, double width, double height);
