// SPDX-License-Identifier: MIT
#include "Houses.h"

#include "Drawing.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

const std::array<QColor, 8> wallColors{0xd98a5f, 0xe9c98f, 0xc8665a, 0xf1e4cb,
                                       0x8fb0a8, 0xe3ab5c, 0x7d98b5, 0xd9a9a0};
const std::array<QColor, 4> roofColors{0xa5543f, 0x8a4a40, 0x6d5560, 0x59627a};
const std::array<QColor, 5> tileColors{0xb5624a, 0x9a5148, 0xc47f58, 0x7d5a62, 0x8a6a5a};

template<std::size_t count>
const QColor& AnyOf(const std::array<QColor, count>& colors, Random& random)
{
    return colors[static_cast<std::size_t>(random.Below(static_cast<int>(count)))];
}

// Large houses have more windows, not larger ones.
QString KindOf(double size)
{
    return size > 145 ? QStringLiteral("townhouse-") : QStringLiteral("house-");
}

void PaintSmoke(Canvas& canvas, QPointF from, double size)
{
    const QColor smoke = Lighter(canvas.mood.haze, 0.35);
    for (int i = 0; i < 26; ++i) {
        const double up = i / 26.0;
        const QPointF drift(std::sin(up * 5) * size * 0.25 + up * up * size * 0.8,
                            -up * size * 1.6);
        canvas.Glow(from + drift, size * (0.08 + 0.3 * up), smoke, 0.3 * (1 - up));
    }
}

} // namespace

void PaintHouseRow(Canvas& canvas, double left, double right, double base, double size,
                   double distance)
{
    Random& random = canvas.random;
    const QString kind = KindOf(size);
    auto color = static_cast<std::size_t>(random.Below(8));
    double width = 0;
    for (double x = left; x < right - size * 0.3; x += width) {
        width = std::min(right - x, size * random.Between(0.8, 1.2));
        const QString form = random.Chance(0.5)   ? QStringLiteral("gable")
                             : random.Chance(0.5) ? QStringLiteral("steps")
                                                  : QStringLiteral("eaves");
        color = (color + 1 + static_cast<std::size_t>(random.Below(6))) % wallColors.size();
        PaintDrawing(canvas,
                     {kind + form,
                      {{QStringLiteral("wall"), wallColors[color]},
                       {QStringLiteral("roof"), AnyOf(roofColors, random)}},
                      {},
                      distance},
                     {x + width / 2, base},
                     {width / 1000, size * random.Between(0.8, 1.18) / 1000});
    }
}

void PaintLaneSide(Canvas& canvas, bool left, QPointF far, double eye)
{
    const double length = 1350;
    const double tall = 560;
    const double edge = left ? -canvas.width * 0.12 : canvas.width * 1.12;
    const double street = canvas.height * 1.02;
    const double farTall = (far.y() - eye) * 4.4;
    const QPolygonF flat{{{0, -tall}, {length, -tall}, {length, 0}, {0, 0}}};
    const QPolygonF deep{{{edge, street - tall * 2.05},
                          {far.x(), far.y() - farTall},
                          {far.x(), far.y()},
                          {edge, street}}};
    QTransform lean;
    if (!QTransform::quadToQuad(flat, deep, lean))
        return;
    canvas.painter.save();
    canvas.painter.setTransform(lean, true);
    PaintHouseRow(canvas, 0, length, 0, 215, left ? 0.08 : 0.02);
    canvas.painter.restore();
}

void PaintRoofs(Canvas& canvas, double base, double size, double distance)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const QString kind = KindOf(size);
    const double foot = base + size * 1.6;
    for (double x = -size * random.Between(0.2, 0.9); x < canvas.width + size;
         x += size * random.Between(0.75, 1.1)) {
        const double width = size * random.Between(0.85, 1.2);
        const double tall = size * random.Between(1, 1.3) / 1000;
        const bool eaves = random.Chance(0.55);
        const QColor& roof = AnyOf(tileColors, random);
        const double tint = mood.Winter() ? 0.3 : 0.05;
        const QColor wall = Mix(QColor(0xf0e2c8), roof, random.Between(tint, tint + 0.35));
        PaintDrawing(canvas,
                     {kind + (eaves ? QStringLiteral("eaves") : QStringLiteral("gable")),
                      {{QStringLiteral("wall"), wall}, {QStringLiteral("roof"), roof}},
                      {},
                      distance},
                     {x + width / 2, foot}, {width / 1000, tall});
        if (random.Chance(0.25) && !mood.Summer())
            PaintSmoke(canvas, {x + width * 0.75, foot - tall * (eaves ? 1750 : 2100)}, size * 0.5);
    }
}

void PaintCobbles(Canvas& canvas, double top)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const QColor stone = mood.Lit(mood.Winter() ? QColor(0xdbe4ee) : QColor(0xb3a696));
    canvas.painter.fillRect(QRectF(0, top, canvas.width, canvas.height - top),
                            Fade(top, canvas.height, Lighter(stone, 0.12), Darker(stone, 0.18)));
    double y = top + 5;
    for (int row = 0; y < canvas.height; ++row) {
        const double size = 9 + (y - top) * 0.07;
        for (double x = (row % 2 == 0 ? 0 : -size); x < canvas.width + size; x += size * 2.1) {
            const QColor tone = random.Chance(0.5) ? Lighter(stone, 0.35) : Darker(stone, 0.3);
            canvas.Ellipse({x + random.Between(-2, 2), y}, size * 0.9, size * 0.34,
                           Faded(tone, random.Between(0.08, 0.24)));
        }
        y += size * 0.8;
    }
}
