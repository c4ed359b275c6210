// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Backdrop.h"
#include "Figures.h"
#include "Hills.h"
#include "Sky.h"
#include "Things.h"
#include "Town.h"
#include "Trees.h"

#include <algorithm>
#include <cmath>

namespace {

const QColor earth(0xd9c196);

QColor Way(const Mood& mood)
{
    return mood.Winter() ? QColor(0xd5deea) : earth;
}

// Two or three small houses and a church far off.
void Hamlet(Canvas& canvas, QPointF at, double size, double distance)
{
    PaintChurch(canvas, at + QPointF(size * 0.4, 0), size * 2.6, distance);
    PaintHouseRow(canvas, at.x() - size * 1.3, at.x() + size * 0.1, at.y() + size * 0.06,
                  size * 0.42, distance);
    PaintHouseRow(canvas, at.x() + size * 0.75, at.x() + size * 1.7, at.y() + size * 0.08,
                  size * 0.42, distance);
    for (const double x : {-1.6, -1.1, 0.35, 1.2, 1.9}) {
        PaintTree(canvas, at + QPointF(x * size, size * 0.16), size * 0.8, distance);
    }
}

} // namespace

void HillsScene(Canvas& canvas)
{
    const double horizon = canvas.height * 0.5;
    PaintBackdrop(canvas, horizon, 0.66);
    PaintHills(canvas, horizon, canvas.height * 0.7, 5);
    PaintMist(canvas, canvas.height * 0.6, 260,
              canvas.mood.Dawn() || canvas.mood.Fog() ? 0.65 : 0.25);
    Hamlet(canvas, {canvas.width * 0.3, canvas.height * 0.72}, 62, 0.22);
    const Ridge near(canvas.random, canvas.height * 0.78, 26, 1300);
    PaintGround(canvas, near);
    const double end = canvas.width * 0.44;
    PaintPath(canvas, {end, near.At(end) + 4}, {canvas.width * 0.56, canvas.height + 20}, 260,
              Way(canvas.mood));
    for (double x = canvas.width * 0.84; x < canvas.width + 60; x += 115) {
        PaintTree(canvas, {x, near.At(x) + 24}, canvas.random.Between(230, 330), 0.06);
    }
    PaintBush(canvas, {canvas.width * 0.07, near.At(canvas.width * 0.07) + 40}, 120, 0.05);
    PaintPeople(canvas, {canvas.width * 0.5, near.At(end) + 100}, 96);
    PaintWeather(canvas, canvas.height * 0.62);
}

void MeadowScene(Canvas& canvas)
{
    const double horizon = canvas.height * 0.42;
    PaintBackdrop(canvas, horizon, 0.25);
    PaintHills(canvas, horizon, canvas.height * 0.52, 4);
    const Ridge near(canvas.random, canvas.height * 0.56, 16, 1500);
    PaintGround(canvas, near);
    const double x = canvas.width * 0.72;
    PaintTree(canvas, {x, near.At(x) + 20}, 300, 0.1);
    PaintPeople(canvas, {canvas.width * 0.42, near.At(canvas.width * 0.42) + 95}, 170);
    PaintFlowers(canvas, near, static_cast<int>(canvas.width * 0.75), 40);
    PaintWeather(canvas, horizon);
}

void OrchardScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double horizon = canvas.height * 0.44;
    PaintBackdrop(canvas, horizon, 0.75);
    PaintHills(canvas, horizon, canvas.height * 0.5, 3);
    const Ridge near(canvas.random, canvas.height * 0.54, 8, 1800);
    PaintGround(canvas, near);
    const double middle = canvas.width * 0.5;
    for (int row = 0; row < 6; ++row) {
        const double deep = (row + 1) / 6.0;
        const double y = canvas.height * (0.55 + 0.34 * deep * deep);
        const double size = 90 + 330 * deep * deep;
        const double gap = canvas.width * (0.12 + 0.3 * deep * deep);
        for (const double side : {-1.0, 1.0}) {
            for (int column = 0; column < (row < 3 ? 3 : 1); ++column) {
                const double x = middle + side * (gap + column * size * 0.8);
                const QColor leaf =
                    mood.Spring()
                        ? Mix(mood.leaves[2], mood.leaves[3], canvas.random.Between(0, 0.8))
                        : Mix(QColor(0x7d9a4a), mood.leaves[2], canvas.random.Between(0, 0.5));
                PaintLeafTree(canvas, {x, y}, size, leaf, 0.3 * (1 - deep));
                for (int fruit = 0; fruit < 24 && mood.Autumn(); ++fruit) {
                    const QPointF at(x + canvas.random.Between(-0.32, 0.32) * size,
                                     y - size * canvas.random.Between(0.42, 0.88));
                    canvas.Ellipse(at, size * 0.017, size * 0.018, mood.Lit(QColor(0xc93a32)));
                }
            }
        }
    }
    const bool picking = mood.Autumn();
    PaintPeople(canvas,
                {canvas.width * (picking ? 0.27 : 0.52), canvas.height * (picking ? 0.81 : 0.84)},
                210);
    for (int petal = 0; petal < 160; ++petal) {
        const QColor color = mood.Spring() ? QColor(0xfbe1e6) : QColor(0xc9582f);
        canvas.Ellipse({canvas.random.Between(0, canvas.width),
                        canvas.random.Between(canvas.height * 0.66, canvas.height)},
                       5, 2.6, Faded(mood.Lit(color), 0.8));
    }
}

void FieldScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double horizon = canvas.height * 0.5;
    PaintBackdrop(canvas, horizon, 0.7);
    PaintHills(canvas, horizon, canvas.height * 0.55, 4);
    const Ridge near(canvas.random, canvas.height * 0.57, 6, 1600);
    const QColor crop = mood.Summer()   ? QColor(0xe5bf5c)
                        : mood.Autumn() ? QColor(0xa97c52)
                                        : mood.ground;
    PaintHill(canvas, near, crop, 0.05);
    const QPointF vanish(canvas.width * 0.4, canvas.height * 0.53);
    for (int row = -34; row <= 34; ++row) {
        const double spread = canvas.width * 0.075;
        const double x = vanish.x() + row * spread * 1.6;
        QPolygonF furrow;
        furrow << vanish + QPointF(row * 9, canvas.height * 0.045) << QPointF(x, canvas.height + 20)
               << QPointF(x + spread * 0.75, canvas.height + 20);
        const QColor tone = mood.Lit(Darker(crop, row % 3 == 0 ? 0.32 : 0.2));
        canvas.Fill(furrow,
                    Fade(canvas.height * 0.57, canvas.height, Faded(tone, 0.05), Faded(tone, 0.6)));
    }
    for (const double x : {0.74, 0.16, 0.56}) {
        if (mood.Summer()) {
            const double size = 170 - 140 * std::abs(0.74 - x);
            PaintBale(canvas, {canvas.width * x, canvas.height * (0.62 + size * 0.0011)}, size);
        }
    }
    const double tree = canvas.width * 0.88;
    PaintTree(canvas, {tree, near.At(tree) + 16}, 280, 0.12);
    PaintBirds(canvas, 9, {canvas.width * 0.3, horizon * 0.6}, 140);
    PaintPeople(canvas, {canvas.width * 0.36, canvas.height * 0.8}, 170);
    PaintWeather(canvas, horizon);
}

void MillScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double horizon = canvas.height * 0.6;
    PaintBackdrop(canvas, horizon, 0.25);
    PaintHills(canvas, horizon, canvas.height * 0.68, 4);
    const Ridge near(canvas.random, canvas.height * 0.78, 22, 1700);
    PaintGround(canvas, near);
    const double mill = canvas.width * 0.62;
    PaintPath(canvas, {mill, near.At(mill) + 10}, {canvas.width * 0.3, canvas.height + 20}, 230,
              Way(mood));
    PaintWindmill(canvas, {mill, near.At(mill) + 14}, 520);
    PaintTree(canvas, {mill + 230, near.At(mill + 230) + 14}, 190, 0.08);
    PaintFence(canvas, -20, canvas.width * 0.3, near.At(100) + 60, 62);
    PaintPeople(canvas, {mill - 220, near.At(mill - 220) + 60}, 120);
    PaintWeather(canvas, horizon);
}

void TreeScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double horizon = canvas.height * 0.62;
    PaintBackdrop(canvas, horizon, 0.2);
    PaintHills(canvas, horizon, canvas.height * 0.72, 4);
    const Ridge near(canvas.random, canvas.height * 0.8, 14, 2200);
    PaintGround(canvas, near);
    const double size = std::min(canvas.height * 0.72, canvas.width * 0.78);
    const QPointF foot(canvas.width * 0.54, near.At(canvas.width * 0.54) + 26);
    canvas.Ellipse(foot + QPointF(size * 0.1, 6), size * 0.46, size * 0.045,
                   Faded(mood.Lit(mood.groundDark), 0.55));
    if (mood.Winter()) {
        PaintBareTree(canvas, foot, size, 0.02);
    } else {
        PaintLeafTree(canvas, foot, size, mood.leaves[mood.Spring() ? 2 : 0], 0.02);
    }
    PaintBench(canvas, foot + QPointF(-size * 0.36, 34), 130);
    PaintPeople(canvas, foot + QPointF(size * 0.2, 46), 170);
    for (int leaf = 0; leaf < 140 && !mood.Winter() && !mood.Summer(); ++leaf) {
        const QPointF at =
            foot + QPointF(canvas.random.Between(-0.6, 0.6) * size, canvas.random.Between(0, 110));
        canvas.Ellipse(
            at, 6, 3,
            Faded(mood.Lit(mood.leaves[static_cast<size_t>(2 * canvas.random.Below(2))]), 0.85));
    }
    PaintWeather(canvas, horizon);
}
