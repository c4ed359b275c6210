// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Backdrop.h"
#include "Figures.h"
#include "Hills.h"
#include "Sky.h"
#include "Things.h"
#include "Trees.h"

#include <cmath>

namespace {

// Straight stems from the ground up out of the picture, paler with distance.
void Stems(Canvas& canvas, int layer, double ground)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const double near = layer / 4.0;
    const double distance = 0.78 - 0.72 * near;
    const double width = 14 + 62 * near * near;
    const QColor bark = mood.Far(Mix(QColor(0x6b5444), QColor(0x3d3530), near), distance);
    const double gap = 70 + 330 * near;
    for (double x = random.Between(-gap, 0); x < canvas.width + gap;
         x += gap * random.Between(0.6, 1.3)) {
        const double middle = std::abs(x / canvas.width - 0.5);
        if (layer > 1 && middle < 0.1 + 0.07 * layer) {
            continue;
        }
        const double lean = random.Between(-0.04, 0.04) * canvas.height;
        QPolygonF stem;
        stem << QPointF(x - width * 0.7, ground)
             << QPointF(x - width * 0.42 + lean * 0.3, ground * 0.8)
             << QPointF(x - width * 0.32 + lean, -10) << QPointF(x + width * 0.32 + lean, -10)
             << QPointF(x + width * 0.42 + lean * 0.3, ground * 0.8)
             << QPointF(x + width * 0.7, ground);
        canvas.Fill(
            stem, Across(x - width * 0.5, x + width * 0.5, Lighter(bark, 0.16), Darker(bark, 0.2)));
        if (layer > 2) {
            PaintBush(canvas, {x - width * 0.6, ground + 12}, width * 1.3, 0.05);
            PaintBush(canvas, {x + width * 0.7, ground + 14}, width, 0.05);
        }
    }
}

// Conifers under snow that leave the middle open.
void SnowyRow(Canvas& canvas, int layer, double ground)
{
    const double near = layer / 4.0;
    const double gap = 60 + 90 * near;
    for (double x = -gap; x < canvas.width + gap; x += gap * canvas.random.Between(0.5, 1.2)) {
        const double middle = std::abs(x / canvas.width - 0.5);
        if (middle > 0.02 + 0.115 * layer) {
            const double height = canvas.height * (0.34 + 0.16 * near + 0.55 * middle) *
                                  canvas.random.Between(0.7, 1.05);
            PaintConifer(canvas, {x, ground}, height, 0.74 - 0.7 * near);
        }
    }
}

void Canopy(Canvas& canvas, int layer)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const double near = layer / 4.0;
    const double distance = 0.7 - 0.6 * near;
    const int count = static_cast<int>(canvas.width * (mood.Winter() ? 0.1 : 0.75));
    for (int i = 0; i < count; ++i) {
        const double x = random.Between(0, canvas.width);
        const double side = std::abs(x / canvas.width - 0.5) * 2;
        const double depth = canvas.height * (0.16 + 0.3 * side * side) * (0.6 + 0.5 * near);
        const double y = depth * std::pow(random.Between(0, 1), 0.8) - 15;
        QColor leaf = mood.leaves[static_cast<size_t>(random.Below(mood.Spring() ? 2 : 4))];
        leaf =
            Mix(leaf, random.Chance(0.4) ? mood.sun : mood.groundDark, random.Between(0.05, 0.4));
        const double size = (7 + 15 * near) * random.Between(0.7, 1.4);
        canvas.Ellipse({x, y}, size, size * 0.7,
                       Faded(mood.Far(mood.Winter() ? QColor(0xf4f7fb) : leaf, distance), 0.7));
    }
}

} // namespace

void ForestScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double ground = canvas.height * 0.66;
    const QColor glow = Lighter(mood.Far(mood.Autumn() ? mood.leaves[2] : mood.ground, 0.75), 0.3);
    canvas.painter.fillRect(QRectF(0, 0, canvas.width, canvas.height),
                            Fade(0, ground, Mix(mood.skyMiddle, glow, 0.35), glow));
    canvas.Glow({canvas.width * 0.5, canvas.height * 0.42}, 620, mood.sun, 0.8);
    for (int layer = 0; layer < 3; ++layer) {
        if (mood.Winter()) {
            SnowyRow(canvas, layer, ground + layer * 14);
        } else {
            Stems(canvas, layer, ground + layer * 14);
            Canopy(canvas, layer);
        }
    }
    const Ridge floor(canvas.random, ground, 9, 700);
    PaintGround(canvas, floor);
    const QColor way = mood.Winter()   ? QColor(0xdde5ef)
                       : mood.Autumn() ? QColor(0xd99b52)
                                       : QColor(0xd6c291);
    PaintPath(canvas, {canvas.width * 0.5, floor.At(canvas.width * 0.5) + 2},
              {canvas.width * 0.52, canvas.height + 30}, 430, way);
    for (int i = 0; i < 500 && !mood.Winter(); ++i) {
        const double deep = std::sqrt(canvas.random.Between(0, 1));
        const QPointF at(canvas.random.Between(0, canvas.width),
                         ground + 10 + (canvas.height - ground) * deep);
        const QColor leaf =
            mood.leaves[static_cast<size_t>(canvas.random.Below(mood.Autumn() ? 4 : 2))];
        canvas.Ellipse(at, 3 + 8 * deep, 1.6 + 4 * deep, Faded(mood.Lit(leaf), 0.6));
    }
    PaintPeople(canvas, {canvas.width * 0.53, canvas.height * 0.8}, 170);
    if (mood.Winter()) {
        SnowyRow(canvas, 3, canvas.height * 0.82);
        SnowyRow(canvas, 4, canvas.height * 1.01);
    } else {
        for (double x = -30; x < canvas.width + 30; x += canvas.random.Between(50, 110)) {
            if (std::abs(x / canvas.width - 0.5) > 0.08) {
                PaintBush(canvas, {x, floor.At(x) + 22}, canvas.random.Between(50, 100), 0.3);
            }
        }
        Stems(canvas, 3, canvas.height * 0.82);
        Stems(canvas, 4, canvas.height * 0.98);
        Canopy(canvas, 4);
    }
    for (int beam = 0; beam < 5 && !mood.Winter(); ++beam) {
        const double x = canvas.width * (0.3 + 0.11 * beam);
        QPolygonF light;
        light << QPointF(x + 60, -10) << QPointF(x + 110, -10) << QPointF(x - 120, ground + 130)
              << QPointF(x - 250, ground + 130);
        canvas.Fill(light, Fade(0, ground + 130, Faded(mood.sun, 0.2), Faded(mood.sun, 0)));
    }
    PaintWeather(canvas, ground);
}

void MountainScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double base = canvas.height * 0.72;
    PaintBackdrop(canvas, base, 0.22);
    const double tall = canvas.height * 0.5;
    PaintMountains(canvas, base, tall * 0.75, 0.62, 0.75);
    PaintMist(canvas, base - tall * 0.2, tall * 0.5, 0.3);
    PaintMountains(canvas, base, tall, 0.3, mood.Winter() ? 0.85 : 0.5);
    PaintMist(canvas, base, tall * 0.5, 0.5);
    for (int layer = 0; layer < 3; ++layer) {
        const double near = (layer + 1) / 3.0;
        const Ridge ridge(canvas.random, base + canvas.height * 0.075 * layer, 26, 900);
        PaintHill(canvas, ridge, Mix(mood.hill, mood.ground, near), 0.4 - 0.34 * near);
        for (double x = -20; x < canvas.width + 20;
             x += canvas.random.Between(0.3, 0.9) * (40 + 60 * near)) {
            const double open = std::abs(x / canvas.width - 0.45);
            if (layer == 2 && open < 0.26) {
                continue;
            }
            PaintConifer(canvas, {x, ridge.At(x) + 12 * near},
                         (60 + 150 * near * near) * canvas.random.Between(0.7, 1.3),
                         0.42 - 0.38 * near);
        }
    }
    const Ridge front(canvas.random, canvas.height * 0.95, 12, 1400);
    PaintGround(canvas, front);
    PaintPeople(canvas, {canvas.width * 0.44, canvas.height * 0.95}, 120);
    PaintWeather(canvas, base);
}

void SkyScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double horizon = canvas.height * 0.82;
    PaintBackdrop(canvas, horizon, 0.36);
    if (mood.Storm()) {
        QPainterPath bolt(QPointF(canvas.width * 0.66, horizon * 0.42));
        for (int i = 1; i <= 7; ++i) {
            bolt.lineTo(canvas.width * 0.66 + canvas.random.Between(-45, 30) - i * 9,
                        horizon * (0.42 + 0.08 * i));
        }
        canvas.Stroke(bolt, QColor(255, 246, 214, 70), 16);
        canvas.Stroke(bolt, QColor(0xfffaea), 4);
        canvas.Glow({canvas.width * 0.65, horizon * 0.6}, 400, QColor(0xfff2cc), 0.4);
    } else if (!mood.Lamps()) {
        PaintClouds(canvas, 4, horizon * 0.2, horizon * 0.5, 620);
    }
    PaintHills(canvas, horizon, canvas.height * 0.9, 4);
    const Ridge near(canvas.random, canvas.height * 0.93, 12, 1500);
    PaintGround(canvas, near);
    const double x = canvas.width * 0.74;
    PaintTree(canvas, {x, near.At(x) + 8}, 150, 0.05);
    PaintPeople(canvas, {canvas.width * 0.58, near.At(canvas.width * 0.58) + 16}, 92);
    PaintWeather(canvas, horizon);
}

void CampScene(Canvas& canvas)
{
    const double horizon = canvas.height * 0.74;
    PaintSky(canvas, horizon);
    PaintMilkyWay(canvas, horizon);
    PaintStars(canvas, 700, horizon);
    PaintMountains(canvas, canvas.height * 0.78, canvas.height * 0.26, 0.35,
                   canvas.mood.Winter() ? 0.8 : 0.35);
    const Ridge far(canvas.random, canvas.height * 0.78, 18, 900);
    PaintHill(canvas, far, canvas.mood.hill, 0.14);
    for (double x = 0; x < canvas.width; x += canvas.random.Between(16, 60)) {
        PaintConifer(canvas, {x, far.At(x) + 6}, canvas.random.Between(40, 100), 0.1);
    }
    const Ridge near(canvas.random, canvas.height * 0.86, 12, 1400);
    PaintGround(canvas, near);
    const double x = canvas.width * 0.34;
    PaintTent(canvas, {x, near.At(x) + 50}, 210);
    if (!canvas.people.empty()) {
        const QPointF fire(canvas.width * 0.565, near.At(canvas.width * 0.565) + 78);
        PaintPerson(canvas, canvas.people.front(), fire + QPointF(-120, 0), 150, false);
        PaintPerson(canvas, canvas.people.back(), fire + QPointF(120, 2), 150, true);
        PaintFire(canvas, fire, 74);
    }
    for (int tree = 0; tree < 4; ++tree) {
        PaintConifer(canvas, {canvas.width * (0.82 + 0.065 * tree), canvas.height * 0.93},
                     canvas.random.Between(240, 420), 0);
    }
}
