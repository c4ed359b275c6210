// SPDX-License-Identifier: MIT
#include "Town.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

const std::array<QColor, 8> wallColors = {QColor(0xd98a5f), QColor(0xe9c98f), QColor(0xc8665a),
                                          QColor(0xf1e4cb), QColor(0x8fb0a8), QColor(0xe3ab5c),
                                          QColor(0x7d98b5), QColor(0xd9a9a0)};
const std::array<QColor, 4> roofColors = {QColor(0xa5543f), QColor(0x8a4a40), QColor(0x6d5560),
                                          QColor(0x59627a)};

QPolygonF Front(const House& house)
{
    const double right = house.left + house.width;
    const double eaves = house.base - house.eaves;
    QPolygonF front;
    front << QPointF(house.left, house.base) << QPointF(house.left, eaves);
    if (house.form == Roof::Gable) {
        front << QPointF(house.left + house.width / 2, eaves - house.top);
    } else if (house.form == Roof::Steps) {
        const int steps = 4;
        for (int i = 0; i < 2 * steps - 1; ++i) {
            const double x = house.left + house.width * i / (2 * steps - 1);
            const int level = std::min(i, 2 * steps - 2 - i) + 1;
            const double y = eaves - house.top * level / steps;
            front << QPointF(x, y) << QPointF(x + house.width / (2 * steps - 1), y);
        }
    }
    front << QPointF(right, eaves) << QPointF(right, house.base);
    return front;
}

void Window(Canvas& canvas, const QRectF& frame, double distance)
{
    const Mood& mood = canvas.mood;
    // On winter mornings those who are up have the light on.
    const bool early = mood.Dawn() && mood.Winter();
    const bool lit = (mood.Lamps() || early) && canvas.random.Chance(early ? 0.3 : 0.55);
    const double edge = frame.width() * 0.13;
    canvas.painter.fillRect(frame.adjusted(-edge, -edge, edge, edge),
                            mood.Far(QColor(0xf6efe2), distance));
    const QColor glass =
        lit ? Mix(QColor(0xffd27a), QColor(0xff9f4a), canvas.random.Between(0, 0.6))
            : mood.Far(QColor(0x4a6275), distance);
    canvas.painter.fillRect(frame, Fade(frame.top(), frame.bottom(), Lighter(glass, 0.25), glass));
    const QColor bar = lit ? QColor(0x9a6238) : mood.Far(QColor(0xf6efe2), distance);
    canvas.Line({frame.center().x(), frame.top()}, {frame.center().x(), frame.bottom()}, bar,
                edge * 0.7);
    canvas.Line({frame.left(), frame.top() + frame.height() * 0.4},
                {frame.right(), frame.top() + frame.height() * 0.4}, bar, edge * 0.7);
    if (lit) {
        canvas.Glow(frame.center(), frame.height() * 1.5, QColor(0xffb860), 0.34);
    }
    canvas.painter.fillRect(
        QRectF(frame.left() - edge * 1.6, frame.bottom() + edge * 0.6, frame.width() + edge * 3.2,
               edge * 1.1),
        mood.Far(mood.Winter() ? QColor(0xffffff) : QColor(0xb9a890), distance));
    if (mood.Summer() || mood.Spring()) {
        for (int i = 0; i < 5; ++i) {
            const QPointF at(frame.left() + frame.width() * (i + 0.5) / 5, frame.bottom());
            const QColor bloom = i % 2 == 0 ? QColor(0xd9564f) : QColor(0x6d9a55);
            canvas.Ellipse(at, edge, edge, mood.Far(bloom, distance));
        }
    }
}

void Windows(Canvas& canvas, const House& house, double distance)
{
    const int columns = std::max(2, static_cast<int>(house.width / 62));
    const int floors = std::max(1, static_cast<int>(house.eaves / 92));
    const double tall = house.eaves / floors;
    const double wide = house.width / columns;
    const int door = canvas.random.Below(columns);
    for (int floor = 0; floor < floors; ++floor) {
        for (int column = 0; column < columns; ++column) {
            const double middle = house.left + wide * (column + 0.5);
            const double sill = house.base - tall * floor - tall * 0.24;
            if (floor > 0 || column != door) {
                Window(canvas, {middle - wide * 0.2, sill - tall * 0.46, wide * 0.4, tall * 0.46},
                       distance);
                continue;
            }
            QPainterPath leaf;
            leaf.addRoundedRect(
                QRectF(middle - wide * 0.23, house.base - tall * 0.72, wide * 0.46, tall * 0.74),
                wide * 0.22, wide * 0.22);
            canvas.painter.save();
            canvas.painter.setClipRect(QRectF(house.left, 0, house.width, house.base));
            canvas.Fill(leaf, canvas.mood.Far(Darker(house.roof, 0.35), distance));
            canvas.painter.restore();
        }
    }
    if (house.form != Roof::Eaves) {
        const double x = house.left + house.width / 2;
        const double y = house.base - house.eaves - house.top * 0.38;
        Window(canvas, {x - wide * 0.16, y - tall * 0.12, wide * 0.32, tall * 0.36}, distance);
    }
}

void Cover(Canvas& canvas, const House& house, double distance)
{
    const Mood& mood = canvas.mood;
    const double eaves = house.base - house.eaves;
    const double middle = house.left + house.width / 2;
    const double right = house.left + house.width;
    const QColor tile = mood.Far(house.roof, distance);
    const QColor snow = mood.Far(QColor(0xf6f9fd), distance * 0.8);
    const double rim = house.width * 0.05;
    if (house.form == Roof::Eaves) {
        const double reach = house.width * 0.05;
        QPolygonF slope;
        slope << QPointF(house.left - reach, eaves)
              << QPointF(house.left + reach * 2, eaves - house.top)
              << QPointF(right - reach * 2, eaves - house.top) << QPointF(right + reach, eaves);
        canvas.Fill(slope, Fade(eaves - house.top, eaves, mood.Winter() ? snow : Lighter(tile, 0.1),
                                mood.Winter() ? Mix(snow, tile, 0.2) : Darker(tile, 0.12)));
        for (int row = 1; row < 6 && !mood.Winter(); ++row) {
            const double y = eaves - house.top * row / 6;
            const double in = reach * 3 * row / 6;
            canvas.Line({house.left - reach + in, y}, {right + reach - in, y},
                        Faded(Darker(tile, 0.5), 0.3), 2);
        }
    } else if (house.form == Roof::Gable) {
        QPainterPath slopes(QPointF(house.left - rim, eaves + rim));
        slopes.lineTo(middle, eaves - house.top);
        slopes.lineTo(right + rim, eaves + rim);
        canvas.Stroke(slopes, tile, rim * 1.4);
        if (mood.Winter()) {
            canvas.Stroke(slopes.translated(0, -rim * 0.9), snow, rim * 1.1);
        }
    }
}

} // namespace

void PaintHouse(Canvas& canvas, const House& house, double distance)
{
    const Mood& mood = canvas.mood;
    const double eaves = house.base - house.eaves;
    const double chimney = house.left + house.width * (canvas.random.Chance(0.5) ? 0.2 : 0.7);
    const double wide = house.width * 0.1;
    const QRectF stack(chimney, eaves - house.top * 0.95, wide, house.top * 0.9);
    canvas.painter.fillRect(stack, mood.Far(QColor(0x8d5f50), distance));
    if (mood.Winter()) {
        canvas.painter.fillRect(QRectF(chimney - 2, stack.top() - 5, wide + 4, 8),
                                mood.Far(QColor(0xffffff), distance));
    }
    const QColor wall = mood.Far(house.wall, distance);
    canvas.Fill(Front(house), Across(house.left, house.left + house.width, Lighter(wall, 0.08),
                                     Darker(wall, 0.13)));
    canvas.painter.fillRect(QRectF(house.left, house.base - 14, house.width, 14),
                            Faded(Darker(wall, 0.5), 0.35));
    Cover(canvas, house, distance);
    Windows(canvas, house, distance);
}

void PaintHouseRow(Canvas& canvas, double left, double right, double base, double size,
                   double distance)
{
    Random& random = canvas.random;
    auto color = static_cast<size_t>(random.Below(8));
    double x = left;
    while (x < right - size * 0.3) {
        House house;
        house.left = x;
        house.base = base;
        house.width = std::min(right - x, size * random.Between(0.8, 1.2));
        house.eaves = size * random.Between(1.15, 1.9);
        house.form = random.Chance(0.5)   ? Roof::Gable
                     : random.Chance(0.5) ? Roof::Steps
                                          : Roof::Eaves;
        house.top = size * (house.form == Roof::Eaves ? 0.42 : random.Between(0.55, 0.72));
        color = (color + 1 + static_cast<size_t>(random.Below(6))) % wallColors.size();
        house.wall = wallColors[color];
        house.roof = roofColors[static_cast<size_t>(random.Below(4))];
        PaintHouse(canvas, house, distance);
        x += house.width;
    }
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
