// SPDX-License-Identifier: MIT
#include "Sky.h"

#include <algorithm>
#include <cmath>

void PaintSky(Canvas& canvas, double horizon)
{
    QLinearGradient gradient(0, 0, 0, horizon);
    gradient.setColorAt(0, canvas.mood.skyTop);
    gradient.setColorAt(0.55, canvas.mood.skyMiddle);
    gradient.setColorAt(1, canvas.mood.skyLow);
    canvas.painter.fillRect(QRectF(0, 0, canvas.width, canvas.height), gradient);
}

void PaintSun(Canvas& canvas, QPointF center, double radius)
{
    const QColor sun = canvas.mood.sun;
    canvas.Glow(center, radius * 11, sun, 0.55);
    canvas.Glow(center, radius * 3.5, sun, 0.6);
    canvas.Ellipse(center, radius, radius, Lighter(sun, 0.35));
}

void PaintMoon(Canvas& canvas, QPointF center, double radius)
{
    canvas.Glow(center, radius * 7, QColor(0xbfd0f5), 0.42);
    QRadialGradient face(center - QPointF(radius * 0.3, radius * 0.3), radius * 1.5);
    face.setColorAt(0, QColor(0xfffbe8));
    face.setColorAt(1, QColor(0xdcdcd2));
    canvas.Ellipse(center, radius, radius, face);
    const QColor sea = Faded(QColor(0xb4b8bd), 0.4);
    canvas.Ellipse(center + QPointF(-0.3, -0.2) * radius, radius * 0.24, radius * 0.2, sea);
    canvas.Ellipse(center + QPointF(0.25, -0.35) * radius, radius * 0.14, radius * 0.13, sea);
    canvas.Ellipse(center + QPointF(0.22, 0.3) * radius, radius * 0.3, radius * 0.22, sea);
}

void PaintStars(Canvas& canvas, int count, double lowest)
{
    Random& random = canvas.random;
    for (int i = 0; i < count; ++i) {
        const double y = lowest * std::pow(random.Between(0, 1), 1.3);
        const QPointF at(random.Between(0, canvas.width), y);
        const double radius = 0.8 + 1.7 * std::pow(random.Between(0, 1), 5);
        const double strength = random.Between(0.3, 0.95) * (1 - 0.75 * y / lowest);
        const QColor color = random.Chance(0.25) ? QColor(0xffe9c8) : QColor(0xe9f0ff);
        canvas.Ellipse(at, radius, radius, Faded(color, strength));
        if (radius > 2) {
            canvas.Glow(at, radius * 6, color, 0.4);
        }
    }
}

void PaintMilkyWay(Canvas& canvas, double lowest)
{
    Random& random = canvas.random;
    const QPointF from(canvas.width * 0.22, lowest);
    const QPointF to(canvas.width * 0.74, -60);
    for (int i = 0; i < 90; ++i) {
        const double along = random.Between(0, 1);
        const double aside = random.Between(-1, 1) + random.Between(-1, 1);
        const QPointF at = from + (to - from) * along + QPointF(aside * 70, aside * 25);
        const QColor color = random.Chance(0.3) ? QColor(0xb08cc8) : QColor(0x9ab4ea);
        canvas.Glow(at, random.Between(60, 150), color, 0.055);
    }
    for (int i = 0; i < 500; ++i) {
        const double aside = random.Between(-1, 1) * random.Between(0, 1);
        const QPointF at =
            from + (to - from) * random.Between(0.05, 1) + QPointF(aside * 170, aside * 60);
        canvas.Ellipse(at, 0.9, 0.9, Faded(QColor(0xf2f4ff), random.Between(0.15, 0.6)));
    }
}

namespace {

void Cloud(Canvas& canvas, QPointF at, double size, double opacity)
{
    Random& random = canvas.random;
    QPainterPath heap;
    heap.setFillRule(Qt::WindingFill);
    const int puffs = 7 + random.Below(4);
    double top = at.y();
    for (int i = 0; i < puffs; ++i) {
        const double along = (i + 0.5) / puffs - 0.5;
        const double arch = 1 - 4 * along * along;
        const double radius = size * (0.06 + 0.11 * arch * random.Between(0.6, 1.15));
        const QPointF puff(at.x() + along * size, at.y() - radius * 0.55);
        heap.addEllipse(puff, radius * 1.25, radius);
        top = std::min(top, puff.y() - radius);
    }
    const Mood& mood = canvas.mood;
    const QColor bright =
        mood.Night() ? QColor(0x5a6a9a) : Mix(QColor(0xffffff), mood.sun, mood.Lamps() ? 0.7 : 0.3);
    QLinearGradient shade(0, top, 0, at.y());
    shade.setColorAt(0, Faded(bright, opacity));
    shade.setColorAt(0.55, Faded(Mix(bright, mood.skyMiddle, 0.25), opacity * 0.9));
    shade.setColorAt(1, Faded(mood.skyMiddle, 0.08));
    canvas.painter.save();
    canvas.painter.setClipRect(QRectF(at.x() - size, top - 5, size * 2, at.y() - top + 5));
    canvas.Fill(heap, shade);
    canvas.painter.restore();
}

} // namespace

void PaintClouds(Canvas& canvas, int count, double highest, double lowest, double size)
{
    Random& random = canvas.random;
    for (int i = 0; i < count; ++i) {
        const double near = 1 - (i + 0.5) / count;
        const double y = highest + (lowest - highest) * (1 - near) + random.Between(-15, 15);
        const double x = canvas.width * std::fmod(0.13 + i * 0.382 + random.Between(0, 0.1), 1.0);
        const double width = size * (0.35 + 0.75 * near) * random.Between(0.8, 1.2);
        Cloud(canvas, {x, y}, width, 0.95);
        Cloud(canvas, {x + width * 0.22, y + width * 0.03}, width * 0.6, 0.85);
    }
}

void PaintStreaks(Canvas& canvas, int count, double highest, double lowest)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const QColor bright = mood.Night() ? QColor(0x6a7cae) : mood.sun;
    for (int i = 0; i < count; ++i) {
        const double y = random.Between(highest, lowest);
        const double depth = (y - highest) / (lowest - highest);
        const double x = random.Between(0, canvas.width);
        const double length = random.Between(180, 480) * (1.2 - depth * 0.6);
        const double thickness = random.Between(5, 13) * (1.4 - depth);
        const QColor color = Mix(Mix(bright, mood.skyMiddle, 0.35), mood.skyTop, 0.3 * (1 - depth));
        for (int layer = 0; layer < 3; ++layer) {
            const double slip = random.Between(-0.5, 0.5) * length * 0.5;
            QLinearGradient soft(x + slip - length / 2, 0, x + slip + length / 2, 0);
            soft.setColorAt(0, Faded(color, 0));
            soft.setColorAt(0.5, Faded(color, 0.42));
            soft.setColorAt(1, Faded(color, 0));
            canvas.Ellipse({x + slip, y + layer * thickness * 0.7}, length / 2, thickness, soft);
        }
    }
}

void PaintStormClouds(Canvas& canvas, double lowest)
{
    Random& random = canvas.random;
    for (int row = 0; row < 6; ++row) {
        const double y = lowest * (row - 0.2) / 6;
        const QColor dark = Mix(QColor(0x2e3644), canvas.mood.skyMiddle, row / 8.0);
        for (double x = -100; x < canvas.width + 100; x += random.Between(70, 150)) {
            const double radius = random.Between(90, 190) * (1.1 - row * 0.1);
            QRadialGradient puff(QPointF(0, 0), radius);
            const QColor tone = Mix(dark, QColor(0x8d98a3), random.Between(0, 0.45));
            puff.setColorAt(0, Faded(tone, 0.75));
            puff.setColorAt(0.7, Faded(tone, 0.4));
            puff.setColorAt(1, Faded(dark, 0));
            canvas.painter.save();
            canvas.painter.translate(x, y);
            canvas.painter.scale(1.5, 0.62);
            canvas.Ellipse({0, 0}, radius, radius, puff);
            canvas.painter.restore();
        }
    }
}

void PaintLightning(Canvas& canvas, QPointF from, double height)
{
    QPainterPath bolt(from);
    for (int i = 1; i <= 7; ++i)
        bolt.lineTo(from + QPointF(canvas.random.Between(-45, 30) - i * 9, height * i / 7));
    canvas.Stroke(bolt, QColor(255, 246, 214, 70), 16);
    canvas.Stroke(bolt, QColor(0xfffaea), 4);
}

void PaintBirds(Canvas& canvas, int count, QPointF center, double spread)
{
    Random& random = canvas.random;
    const QColor color = Faded(Darker(canvas.mood.skyMiddle, 0.65), 0.8);
    for (int i = 0; i < count; ++i) {
        const QPointF at =
            center + QPointF(random.Between(-1, 1) * spread, random.Between(-0.45, 0.45) * spread);
        const double wing = random.Between(9, 17);
        const double lift = random.Between(0.25, 0.7) * wing;
        QPainterPath bird(at + QPointF(-wing, -lift));
        bird.quadTo(at + QPointF(-wing * 0.35, -lift * 0.9), at);
        bird.quadTo(at + QPointF(wing * 0.4, -lift), at + QPointF(wing, -lift * 0.7));
        canvas.Stroke(bird, color, 2.2);
    }
}

void PaintMist(Canvas& canvas, double middle, double thickness, double strength)
{
    const QColor mist = Lighter(canvas.mood.haze, canvas.mood.Night() ? 0.08 : 0.3);
    QLinearGradient band(0, middle - thickness / 2, 0, middle + thickness / 2);
    band.setColorAt(0, Faded(mist, 0));
    band.setColorAt(0.5, Faded(mist, strength));
    band.setColorAt(1, Faded(mist, 0));
    canvas.painter.fillRect(QRectF(0, middle - thickness / 2, canvas.width, thickness), band);
}

void PaintRain(Canvas& canvas, int count)
{
    Random& random = canvas.random;
    for (int i = 0; i < count; ++i) {
        const QPointF from(random.Between(-50, canvas.width), random.Between(-50, canvas.height));
        const double length = random.Between(18, 46);
        canvas.Line(from, from + QPointF(length * 0.22, length),
                    Faded(QColor(0xe8eef2), random.Between(0.08, 0.3)), 1.3);
    }
}

void PaintSnowfall(Canvas& canvas, int count)
{
    Random& random = canvas.random;
    for (int i = 0; i < count; ++i) {
        const QPointF at(random.Between(0, canvas.width), random.Between(0, canvas.height));
        const double radius = 1.2 + 4.2 * std::pow(random.Between(0, 1), 3);
        canvas.Ellipse(at, radius, radius, Faded(QColor(0xffffff), random.Between(0.35, 0.85)));
    }
}
