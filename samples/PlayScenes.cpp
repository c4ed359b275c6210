// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Backdrop.h"
#include "Figures.h"
#include "Hills.h"
#include "Sky.h"
#include "Things.h"
#include "Town.h"
#include "Trees.h"

void BalloonScene(Canvas& canvas)
{
    const double horizon = canvas.height * 0.72;
    PaintBackdrop(canvas, horizon, 0.2);
    PaintHills(canvas, horizon, canvas.height * 0.86, 6);
    PaintMist(canvas, canvas.height * 0.77, 200, 0.45);
    PaintBalloon(canvas, {canvas.width * 0.83, canvas.height * 0.6}, 120, QColor(0x7fa88f),
                 QColor(0xf2e6c4));
    PaintBalloon(canvas, {canvas.width * 0.2, canvas.height * 0.5}, 210, QColor(0x4f7fa8),
                 QColor(0xf4c763));
    PaintBalloon(canvas, {canvas.width * 0.55, canvas.height * 0.56}, 520, QColor(0xd9534a),
                 QColor(0xf7dfae));
    const Ridge near(canvas.random, canvas.height * 0.91, 16, 1100);
    PaintGround(canvas, near);
    PaintTreeLine(canvas, near, 46, 0.08);
}

void KiteScene(Canvas& canvas)
{
    const double horizon = canvas.height * 0.66;
    PaintBackdrop(canvas, horizon, 0.15);
    PaintHills(canvas, horizon, canvas.height * 0.74, 4);
    const Ridge near(canvas.random, canvas.height * 0.82, 18, 1300);
    PaintGround(canvas, near);
    const double size = 210;
    const QPointF middle(canvas.width * 0.34, near.At(canvas.width * 0.34) + 60);
    const double step = size * 0.6 * (static_cast<double>(canvas.people.size()) - 1) / 2;
    // Whoever flies the kite is the first of the people and so stands on the left.
    const bool child =
        !canvas.people.empty() && canvas.people.front().name == QLatin1String("Mira");
    const double tall = size * (child ? 0.7 : 0.98);
    const QPointF hand(middle.x() - step + tall * 0.2, middle.y() - tall);
    PaintKite(canvas, {canvas.width * 0.72, canvas.height * 0.24}, hand, 150);
    PaintPeople(canvas, middle, size);
    PaintBush(canvas, {canvas.width * 0.9, near.At(canvas.width * 0.9) + 50}, 130, 0.05);
    PaintWeather(canvas, horizon);
}

void PicnicScene(Canvas& canvas)
{
    const double horizon = canvas.height * 0.46;
    PaintBackdrop(canvas, horizon, 0.2);
    PaintHills(canvas, horizon, canvas.height * 0.56, 4);
    const Ridge near(canvas.random, canvas.height * 0.6, 14, 1700);
    PaintGround(canvas, near);
    const double trunk = canvas.width * 0.76;
    canvas.Ellipse({trunk - 60, near.At(trunk) + 130}, 430, 60,
                   Faded(canvas.mood.Lit(canvas.mood.groundDark), 0.55));
    PaintLeafTree(canvas, {trunk, near.At(trunk) + 96}, canvas.height * 0.66, canvas.mood.leaves[0],
                  0.02);
    const QPointF cloth(canvas.width * 0.42, canvas.height * 0.82);
    PaintBlanket(canvas, cloth, 520);
    if (!canvas.people.empty()) {
        PaintPerson(canvas, canvas.people.front(), cloth + QPointF(-190, 0), 300, false);
        PaintPerson(canvas, canvas.people.back(), cloth + QPointF(210, -6), 290, true);
    }
    PaintWeather(canvas, horizon);
}

void SnowmanScene(Canvas& canvas)
{
    const double horizon = canvas.height * 0.55;
    PaintBackdrop(canvas, horizon, 0.24);
    PaintHills(canvas, horizon, canvas.height * 0.64, 4);
    PaintHouseRow(canvas, canvas.width * 0.66, canvas.width * 0.9, canvas.height * 0.68, 110, 0.25);
    const Ridge near(canvas.random, canvas.height * 0.69, 12, 1500);
    PaintGround(canvas, near);
    PaintFence(canvas, canvas.width * 0.52, canvas.width + 20, near.At(canvas.width * 0.8) + 40,
               66);
    PaintConifer(canvas, {canvas.width * 0.1, canvas.height * 0.8}, 430, 0.06);
    PaintSnowman(canvas, {canvas.width * 0.44, canvas.height * 0.92}, 540);
    PaintPeople(canvas, {canvas.width * 0.75, canvas.height * 0.92}, 330);
    PaintSnowfall(canvas, 260);
}

void LanternScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double horizon = canvas.height * 0.62;
    PaintBackdrop(canvas, horizon, 0.78);
    PaintHills(canvas, horizon, canvas.height * 0.7, 4);
    for (int i = 0; i < 9; ++i) {
        PaintConifer(canvas, {canvas.width * (0.06 + 0.115 * i), canvas.height * 0.75},
                     canvas.random.Between(120, 260), 0.25);
    }
    // Lights of the town, out of focus.
    for (int i = 0; i < 26; ++i) {
        const QPointF at(canvas.random.Between(0, canvas.width),
                         canvas.height * canvas.random.Between(0.64, 0.74));
        const double radius = canvas.random.Between(8, 26);
        canvas.Ellipse(at, radius, radius,
                       Faded(QColor(0xffc474), canvas.random.Between(0.12, 0.4)));
    }
    const double sill = canvas.height * 0.79;
    const QColor stone = mood.Lit(QColor(0xa9998c));
    canvas.painter.fillRect(QRectF(0, sill, canvas.width, canvas.height - sill),
                            Fade(sill, canvas.height, stone, Darker(stone, 0.5)));
    if (mood.Winter()) {
        QPainterPath snow(QPointF(-10, sill + 40));
        const Ridge edge(canvas.random, sill + 52, 14, 330);
        for (double x = -10; x <= canvas.width + 10; x += 8) {
            snow.lineTo(x, edge.At(x));
        }
        snow.lineTo(canvas.width + 10, sill - 14);
        snow.quadTo(canvas.width / 2, sill - 34, -10, sill - 12);
        canvas.Fill(snow, Fade(sill - 30, sill + 60, mood.Lit(QColor(0xffffff)),
                               mood.Lit(QColor(0xb4c6de))));
    }
    const QPointF foot(canvas.width * 0.44, sill + 14);
    canvas.painter.save();
    canvas.painter.translate(foot);
    canvas.painter.scale(1, 0.16);
    canvas.Glow({0, 0}, 560, QColor(0xffb65c), 0.85);
    canvas.painter.restore();
    PaintLantern(canvas, foot, 440);
    PaintWeather(canvas, horizon);
}
