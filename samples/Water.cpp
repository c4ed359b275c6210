// SPDX-License-Identifier: MIT
#include "Water.h"

#include <algorithm>
#include <cmath>

namespace {

void Mirror(Canvas& canvas, double line, double roughness, double opacity)
{
    const double scale = std::min(canvas.image.width(), canvas.image.height()) / 1000.0;
    const QImage above =
        canvas.image.copy(0, 0, canvas.image.width(), static_cast<int>(line * scale));
    canvas.painter.save();
    canvas.painter.setOpacity(opacity);
    const double strip = 3;
    for (double down = 0; line + down < canvas.height; down += strip) {
        // A little squeezed, as a mirror seen from a standing height is.
        const double source = std::max(0.0, (line - down * 1.15 - strip)) * scale;
        const double depth = down / 300;
        const double wave = std::sin(down * 0.21 / (1 + depth)) + std::sin(down * 0.077 + 1.3);
        const double slip = wave * (1 + 5 * roughness) * std::min(3.0, 0.25 + depth);
        canvas.painter.drawImage(QRectF(slip, line + down, canvas.width, strip + 0.6), above,
                                 QRectF(0, source, above.width(), strip * scale));
    }
    canvas.painter.restore();
}

void Ripples(Canvas& canvas, double line, double roughness)
{
    Random& random = canvas.random;
    const double depth = canvas.height - line;
    const int count = static_cast<int>(canvas.width * (0.12 + 0.25 * roughness));
    for (int i = 0; i < count; ++i) {
        const double near = random.Between(0, 1);
        const double y = line + 4 + depth * near * near;
        const double length = (14 + 90 * near * near) * random.Between(0.5, 1.5);
        const double thickness = 0.8 + 3 * near * near;
        const bool bright = random.Chance(0.6);
        const QColor color =
            bright ? Lighter(canvas.mood.skyMiddle, 0.25) : Darker(canvas.mood.water, 0.3);
        canvas.Ellipse({random.Between(0, canvas.width), y}, length, thickness,
                       Faded(color, random.Between(0.08, 0.26)));
    }
}

} // namespace

void PaintWater(Canvas& canvas, double line, double roughness)
{
    const Mood& mood = canvas.mood;
    const QRectF area(0, line, canvas.width, canvas.height - line);
    const QColor shallow = Mix(mood.water, mood.skyLow, 0.45);
    const QColor deep = Darker(mood.water, mood.Fog() ? 0.1 : 0.25);
    const QLinearGradient body = Fade(line, canvas.height, shallow, deep);
    canvas.painter.fillRect(area, shallow);
    Mirror(canvas, line, roughness, 1);
    canvas.painter.save();
    canvas.painter.setOpacity(0.22 + 0.55 * roughness);
    canvas.painter.fillRect(area, body);
    canvas.painter.restore();
    canvas.painter.fillRect(area, Fade(line, canvas.height, Faded(deep, 0), Faded(deep, 0.55)));
    Ripples(canvas, line, roughness);
}

void PaintGlitter(Canvas& canvas, double x, double line, double spread, const QColor& color)
{
    Random& random = canvas.random;
    const double depth = canvas.height - line;
    const int count = 150;
    for (int i = 0; i < count; ++i) {
        const double near = std::pow(static_cast<double>(i) / count, 1.4);
        const double half = spread * (0.25 + 0.75 * near);
        const double aside = (random.Between(-1, 1) + random.Between(-1, 1)) * half / 2;
        canvas.Ellipse({x + aside, line + 3 + depth * near},
                       6 + 26 * near * random.Between(0.4, 1.2), 1 + 2.6 * near,
                       Faded(color, random.Between(0.25, 0.75) * (1 - 0.5 * near)));
    }
}

void PaintIce(Canvas& canvas, double line)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const QRectF area(0, line, canvas.width, canvas.height - line);
    canvas.painter.fillRect(area, mood.Lit(QColor(0xd7e6f0)));
    Mirror(canvas, line, 0, 0.28);
    canvas.painter.fillRect(area, Fade(line, canvas.height, Faded(mood.Lit(QColor(0xeef4f8)), 0.5),
                                       Faded(mood.Lit(QColor(0x8fb2cc)), 0.55)));
    for (int i = 0; i < 60; ++i) {
        const double near = random.Between(0, 1);
        const QPointF at(random.Between(0, canvas.width), line + 8 + (canvas.height - line) * near);
        const double length = 40 + 260 * near * random.Between(0.3, 1);
        QPainterPath scratch(at);
        scratch.quadTo(at + QPointF(length * 0.5, random.Between(-18, 18) * near),
                       at + QPointF(length, random.Between(-10, 10) * near));
        canvas.Stroke(scratch, Faded(QColor(0xffffff), random.Between(0.15, 0.5)), 1 + near * 1.5);
    }
}

void PaintSurf(Canvas& canvas, double line, double shore)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const int rows = 7;
    for (int row = 0; row < rows; ++row) {
        const double near = std::pow((row + 1.0) / rows, 1.7);
        const double y = line + (shore - line) * near;
        const double step = 30 + 120 * near;
        for (double x = -step; x < canvas.width + step; x += step * random.Between(0.9, 1.9)) {
            const double length = step * random.Between(0.5, 1.3);
            QPainterPath crest(QPointF(x, y));
            crest.quadTo(x + length * 0.5, y - 7 * near - 2, x + length, y);
            crest.quadTo(x + length * 0.5, y + 3 * near, x, y);
            canvas.Fill(crest, Faded(mood.Lit(QColor(0xffffff)), 0.3 + 0.5 * near));
        }
    }
}
