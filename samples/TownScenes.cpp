// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Backdrop.h"
#include "Figures.h"
#include "Hills.h"
#include "Sky.h"
#include "Town.h"
#include "Trees.h"

#include <QTransform>

#include <algorithm>

namespace {

const std::array<QColor, 5> tiles = {QColor(0xb5624a), QColor(0x9a5148), QColor(0xc47f58),
                                     QColor(0x7d5a62), QColor(0x8a6a5a)};

// A row of houses drawn flat and then leaned into the depth of a lane.
void LaneSide(Canvas& canvas, bool left, QPointF far, double eye)
{
    const double length = 1350;
    const double tall = 560;
    const double edge = left ? -canvas.width * 0.12 : canvas.width * 1.12;
    const double street = canvas.height * 1.02;
    QPolygonF flat;
    flat << QPointF(0, -tall) << QPointF(length, -tall) << QPointF(length, 0) << QPointF(0, 0);
    const double farTall = (far.y() - eye) * 4.4;
    QPolygonF deep;
    deep << QPointF(edge, street - tall * 2.05) << QPointF(far.x(), far.y() - farTall)
         << QPointF(far.x(), far.y()) << QPointF(edge, street);
    QTransform lean;
    if (!QTransform::quadToQuad(flat, deep, lean)) {
        return;
    }
    canvas.painter.save();
    canvas.painter.setTransform(lean, true);
    PaintHouseRow(canvas, 0, length, 0, 215, left ? 0.08 : 0.02);
    canvas.painter.restore();
}

void Roofs(Canvas& canvas, double base, double size, double distance)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    for (double x = -size * random.Between(0.2, 0.9); x < canvas.width + size;
         x += size * random.Between(0.75, 1.1)) {
        House house;
        house.left = x;
        house.base = base + size * 1.6;
        house.width = size * random.Between(0.85, 1.2);
        house.eaves = size * random.Between(1.35, 1.85);
        house.top = size * random.Between(0.5, 0.75);
        house.form = random.Chance(0.55) ? Roof::Eaves : Roof::Gable;
        house.roof = tiles[static_cast<size_t>(random.Below(5))];
        const double tint = mood.Winter() ? 0.3 : 0.05;
        house.wall = Mix(QColor(0xf0e2c8), house.roof, random.Between(tint, tint + 0.35));
        PaintHouse(canvas, house, distance);
        if (random.Chance(0.25) && !mood.Summer()) {
            PaintSmoke(canvas, {x + house.width * 0.3, base + size * 1.6 - house.eaves - house.top},
                       size * 0.5);
        }
    }
}

} // namespace

void StreetScene(Canvas& canvas)
{
    const double ground = canvas.height * 0.76;
    PaintBackdrop(canvas, ground, 0.22);
    PaintChurch(canvas, {canvas.width * 0.36, ground}, canvas.height * 0.68, 0.35);
    PaintHouseRow(canvas, -30, canvas.width + 60, ground, 210, 0.02);
    PaintCobbles(canvas, ground);
    for (double x = canvas.width * 0.16; x < canvas.width; x += 520) {
        PaintTree(canvas, {x + 190, ground + 26}, 250, 0.02);
        PaintStreetLamp(canvas, {x, ground + 40}, 270);
    }
    PaintPeople(canvas, {canvas.width * 0.355, canvas.height * 0.9}, 220);
    PaintWeather(canvas, ground);
}

void LaneScene(Canvas& canvas)
{
    const double eye = canvas.height * 0.6;
    const double end = canvas.height * 0.66;
    PaintBackdrop(canvas, eye, 0.5);
    PaintHills(canvas, eye * 0.92, eye, 2);
    PaintChurch(canvas, {canvas.width * 0.5, end}, canvas.height * 0.4, 0.3);
    PaintCobbles(canvas, end - 4);
    LaneSide(canvas, true, {canvas.width * 0.4, end}, eye);
    LaneSide(canvas, false, {canvas.width * 0.6, end}, eye);
    PaintStreetLamp(canvas, {canvas.width * 0.27, canvas.height * 0.8}, 330);
    PaintStreetLamp(canvas, {canvas.width * 0.65, canvas.height * 0.715}, 150);
    PaintPeople(canvas, {canvas.width * 0.52, canvas.height * 0.86}, 250);
    PaintWeather(canvas, eye);
}

void MarketScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double ground = canvas.height * 0.6;
    PaintBackdrop(canvas, ground, 0.75);
    PaintChurch(canvas, {canvas.width * 0.3, ground}, canvas.height * 0.58, 0.2);
    PaintHouseRow(canvas, -30, canvas.width + 40, ground, 140, 0.1);
    PaintCobbles(canvas, ground);
    const std::array<QColor, 4> cloths = {QColor(0xc9483f), QColor(0x3f7f8c), QColor(0xe0a03f),
                                          QColor(0x5f8f55)};
    size_t stall = 0;
    for (double x = canvas.width * 0.1; x < canvas.width; x += 260) {
        PaintStall(canvas, {x, canvas.height * 0.72}, 180, cloths[stall++ % 4]);
    }
    if (mood.Winter()) {
        PaintConifer(canvas, {canvas.width * 0.53, canvas.height * 0.75}, canvas.height * 0.5, 0);
        for (int i = 0; i < 46; ++i) {
            const double up = canvas.random.Between(0.06, 0.88);
            const QPointF at(canvas.width * 0.53 +
                                 canvas.random.Between(-0.2, 0.2) * (1 - up) * canvas.height * 0.5,
                             canvas.height * (0.75 - 0.5 * up));
            canvas.Glow(at, 20, QColor(0xffc35c), 0.8);
            canvas.Ellipse(at, 4, 4, QColor(0xfff0b8));
        }
    }
    PaintStall(canvas, {canvas.width * 0.82, canvas.height * 0.93}, 330, cloths[0]);
    PaintStall(canvas, {canvas.width * 0.12, canvas.height * 0.96}, 340, cloths[1]);
    PaintPeople(canvas, {canvas.width * 0.46, canvas.height * 0.93}, 240);
    PaintWeather(canvas, ground);
}

void TowerScene(Canvas& canvas)
{
    const double ground = canvas.height * 0.8;
    PaintBackdrop(canvas, ground, 0.24);
    PaintHills(canvas, ground * 0.82, ground * 0.92, 3);
    Roofs(canvas, ground - 90, 110, 0.35);
    PaintChurch(canvas, {canvas.width * 0.54, canvas.height * 0.96}, canvas.height * 0.86, 0.05);
    Roofs(canvas, canvas.height * 0.87, 180, 0.06);
    PaintBirds(canvas, 11, {canvas.width * 0.3, canvas.height * 0.3}, 170);
    PaintWeather(canvas, ground);
}

void RooftopScene(Canvas& canvas)
{
    const double horizon = canvas.height * 0.5;
    PaintBackdrop(canvas, horizon, 0.7);
    PaintHills(canvas, horizon * 0.86, horizon, 3);
    PaintChurch(canvas, {canvas.width * 0.3, canvas.height * 0.7}, canvas.height * 0.54, 0.3);
    for (int row = 0; row < 4; ++row) {
        const double near = row / 3.0;
        Roofs(canvas, canvas.height * (0.5 + 0.34 * near * (0.6 + 0.4 * near)), 90 + 170 * near,
              0.42 - 0.38 * near);
        PaintMist(canvas, canvas.height * (0.6 + 0.3 * near), 180, 0.16);
    }
    PaintWeather(canvas, horizon);
}
