// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Backdrop.h"
#include "Figures.h"
#include "Hills.h"
#include "Sky.h"
#include "Things.h"
#include "Town.h"
#include "Trees.h"
#include "Water.h"

#include <algorithm>

namespace {

// The far shore of a lake: mountains, wooded hills and a strip of bank.
void FarShore(Canvas& canvas, double line, double light)
{
    const Mood& mood = canvas.mood;
    PaintBackdrop(canvas, line, light);
    PaintMountains(canvas, line, line * 0.5, 0.58, mood.Summer() ? 0.4 : 0.8);
    PaintMist(canvas, line - 20, 260, 0.5);
    PaintHills(canvas, line - 70, line - 8, 3);
    const Ridge bank(canvas.random, line - 8, 5, 800);
    PaintHill(canvas, bank, mood.groundDark, 0.2);
    PaintTreeLine(canvas, bank, 62, 0.18);
    PaintTreeLine(canvas, bank, 44, 0.12);
}

void SunLane(Canvas& canvas, double line, double light)
{
    const Mood& mood = canvas.mood;
    if (mood.Dawn() || mood.Lamps()) {
        PaintGlitter(canvas, canvas.width * light, line, 130, mood.sun);
    }
}

// A headland of grass and rock that falls to the sea on its left side.
Ridge Cliff(Canvas& canvas, double left, double top, double line)
{
    const Mood& mood = canvas.mood;
    Random& random = canvas.random;
    const Ridge crest(random, top, 10, 700);
    QPolygonF rock;
    QPolygonF foot;
    // Ledges: down, then a little to the right, as far as the lower edge.
    const double deep = canvas.height + 30 - line;
    for (int i = 8; i >= 0; --i) {
        const double x = left - 60 + (canvas.width - left) * 0.42 * (i / 8.0) * (i / 8.0);
        foot << QPointF(x + random.Between(-26, 14), line + deep * i / 8.0);
        foot << QPointF(x - 20 + random.Between(-14, 14), line + deep * (i - 0.45) / 8.0);
    }
    rock << foot;
    for (int i = 1; i < 8; ++i) {
        rock << QPointF(left - 70 + i * 9 + random.Between(-11, 11), line + (top - line) * i / 8.0);
    }
    for (double x = left; x < canvas.width + 20; x += 12) {
        rock << QPointF(x, crest.At(x));
    }
    rock << QPointF(canvas.width + 20, canvas.height + 30);
    const QColor stone = mood.Lit(mood.Winter() ? QColor(0x8d8f9c) : QColor(0xa58d76));
    canvas.Fill(rock, Fade(top, canvas.height, Lighter(stone, 0.15), Darker(stone, 0.35)));
    QPainterPath area;
    area.addPolygon(rock);
    canvas.painter.save();
    canvas.painter.setClipPath(area);
    for (int i = 0; i < 90; ++i) {
        const QPointF at(random.Between(left - 80, canvas.width),
                         random.Between(top, canvas.height));
        const double size = random.Between(30, 110);
        QPolygonF facet;
        facet << at
              << at + QPointF(size * random.Between(0.3, 0.6), random.Between(-0.1, 0.3) * size)
              << at + QPointF(size * random.Between(0.1, 0.4), size * random.Between(0.7, 1.3));
        canvas.Fill(facet,
                    Faded(random.Chance(0.45) ? Lighter(stone, 0.35) : Darker(stone, 0.45), 0.13));
    }
    QPainterPath turf(QPointF(left - 30, top - 30));
    turf.lineTo(canvas.width + 20, top - 40);
    turf.lineTo(canvas.width + 20, top + 190);
    turf.quadTo(left + (canvas.width - left) * 0.5, top + 60, left - 30, top + 22);
    canvas.Fill(turf, Fade(top - 10, top + 160, mood.Lit(mood.ground), mood.Lit(mood.groundDark)));
    canvas.painter.restore();
    for (const QPointF& at : foot) {
        for (int i = 0; i < 5; ++i) {
            canvas.Ellipse(at + QPointF(random.Between(-34, 6), random.Between(-14, 14)),
                           random.Between(9, 30), random.Between(3, 7),
                           Faded(mood.Lit(QColor(0xffffff)), 0.4));
        }
    }
    return crest;
}

} // namespace

void LakeScene(Canvas& canvas)
{
    const double line = canvas.height * 0.52;
    const double light = 0.34;
    FarShore(canvas, line, light);
    PaintWater(canvas, line, 0.12);
    SunLane(canvas, line, light);
    PaintMist(canvas, line + 10, 150, canvas.mood.Fog() || canvas.mood.Dawn() ? 0.7 : 0.3);
    const double pier = canvas.width * 0.66;
    PaintPier(canvas, {pier, canvas.height * 0.72}, 74, {pier + 190, canvas.height + 60}, 360);
    PaintPeople(canvas, {pier + 4, canvas.height * 0.765}, 185);
    PaintRowBoat(canvas, {canvas.width * 0.4, canvas.height * 0.8}, 260, QColor(0xb5513f));
    PaintReeds(canvas, {canvas.width * 0.05, canvas.height + 6}, 260, 260);
    PaintWeather(canvas, line);
}

void SkatingScene(Canvas& canvas)
{
    const double line = canvas.height * 0.5;
    FarShore(canvas, line, 0.3);
    PaintIce(canvas, line);
    PaintMist(canvas, line + 5, 110, 0.4);
    const Person stranger{QString(), QStringLiteral("Skating")};
    PaintPerson(canvas, stranger, {canvas.width * 0.74, line + 90}, 84, true);
    PaintPerson(canvas, {QStringLiteral("Clara"), QStringLiteral("Skating")},
                {canvas.width * 0.84, line + 130}, 96, true);
    PaintPerson(canvas, stranger, {canvas.width * 0.2, line + 60}, 66, false);
    PaintPeople(canvas, {canvas.width * 0.42, canvas.height * 0.84}, 300);
    PaintReeds(canvas, {canvas.width * 0.93, canvas.height + 6}, 240, 230);
    PaintSnowfall(canvas, 150);
}

void BoatScene(Canvas& canvas)
{
    const double line = canvas.height * 0.4;
    FarShore(canvas, line, 0.7);
    PaintWater(canvas, line, 0.1);
    SunLane(canvas, line, 0.7);
    PaintMist(canvas, line, 150, 0.4);
    const QPointF at(canvas.width * 0.44, canvas.height * 0.72);
    canvas.painter.save();
    canvas.painter.setClipRect(QRectF(0, 0, canvas.width, at.y() - 48));
    PaintPeople(canvas, at + QPointF(-20, -42), 260);
    canvas.painter.restore();
    PaintRowBoat(canvas, at, 430, QColor(0x3f7f8c));
    PaintReeds(canvas, {canvas.width * 0.9, canvas.height + 8}, 330, 290);
    PaintReeds(canvas, {canvas.width * 0.04, canvas.height + 8}, 160, 180);
    PaintWeather(canvas, line);
}

void CoastScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double line = canvas.height * 0.58;
    PaintBackdrop(canvas, line, 0.26);

    PaintWater(canvas, line, mood.Storm() ? 0.9 : 0.6);
    SunLane(canvas, line, 0.26);
    PaintSailBoat(canvas, {canvas.width * 0.14, line + 44}, 92, QColor(0xfdf4e2));
    PaintSailBoat(canvas, {canvas.width * 0.36, line + 96}, 150, QColor(0xe9a45c));
    if (mood.Storm()) {
        PaintSurf(canvas, line + 60, canvas.height * 0.98);
    }
    const double left = canvas.width * 0.58;
    const double top = canvas.height * 0.56;
    const Ridge crest = Cliff(canvas, left, top, line + 70);
    const double tower = canvas.width * 0.76;
    House cottage;
    cottage.left = tower + 60;
    cottage.base = crest.At(tower) + 26;
    cottage.width = 130;
    cottage.eaves = 62;
    cottage.top = 60;
    cottage.wall = QColor(0xf5eddc);
    cottage.roof = QColor(0xa9503f);
    cottage.form = Roof::Eaves;
    PaintHouse(canvas, cottage, 0.04);
    PaintLighthouse(canvas, {tower, crest.At(tower) + 22}, std::min(460.0, top * 0.8),
                    mood.Lamps() || mood.Storm());
    PaintPeople(canvas, {left + 70, crest.At(left + 70) + 34}, 84);
    PaintBirds(canvas, 6, {canvas.width * 0.45, canvas.height * 0.3}, 120);
    PaintWeather(canvas, line);
}

void BeachScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double line = canvas.height * 0.42;
    PaintBackdrop(canvas, line, 0.75);
    PaintWater(canvas, line, 0.7);
    SunLane(canvas, line, 0.75);
    PaintSailBoat(canvas, {canvas.width * 0.24, line + 34}, 110, QColor(0xd9625a));
    PaintSailBoat(canvas, {canvas.width * 0.6, line + 16}, 60, QColor(0xfdf4e2));
    const double shore = canvas.height * 0.64;
    PaintSurf(canvas, line + 20, shore - 6);
    const Ridge edge(canvas.random, shore, 12, 800);
    const Ridge wet(canvas.random, shore + 34, 12, 760);
    PaintHill(canvas, edge, QColor(0xc9ad82), 0);
    PaintHill(canvas, wet, QColor(0xf0dcae), 0);
    for (int i = 0; i < 420; ++i) {
        const QPointF at(canvas.random.Between(0, canvas.width),
                         canvas.random.Between(shore + 60, canvas.height));
        canvas.Ellipse(at, 2.4, 1.3, Faded(mood.Lit(QColor(0x9a7f58)), 0.4));
    }
    PaintParasol(canvas, {canvas.width * 0.74, canvas.height * 0.84}, 300, QColor(0xe2604c));
    PaintPeople(canvas, {canvas.width * 0.6, canvas.height * 0.88}, 210);
    PaintBirds(canvas, 5, {canvas.width * 0.42, canvas.height * 0.22}, 110);
}

void SailScene(Canvas& canvas)
{
    const double line = canvas.height * 0.6;
    PaintBackdrop(canvas, line, 0.62);
    const Ridge far(canvas.random, line - 26, 22, 900);
    PaintHill(canvas, far, canvas.mood.hill, 0.55);
    const Ridge close(canvas.random, line - 10, 12, 700);
    PaintHill(canvas, close, canvas.mood.hill, 0.35);
    PaintWater(canvas, line, 0.35);
    SunLane(canvas, line, 0.62);
    PaintSailBoat(canvas, {canvas.width * 0.86, line + 20}, 80, QColor(0xf6ead0));
    PaintSailBoat(canvas, {canvas.width * 0.24, line + 46}, 140, QColor(0xd9745a));
    PaintSailBoat(canvas, {canvas.width * 0.46, canvas.height * 0.8},
                  std::min(620.0, canvas.height * 0.56), QColor(0xf7e6c2));
}

void HarbourScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double line = canvas.height * 0.62;
    PaintBackdrop(canvas, line, 0.2);
    PaintHills(canvas, canvas.height * 0.42, canvas.height * 0.55, 3);
    PaintChurch(canvas, {canvas.width * 0.64, line - 30}, canvas.height * 0.5, 0.2);
    PaintHouseRow(canvas, -20, canvas.width + 40, line - 22, 128, 0.05);
    const QColor quay = mood.Lit(mood.Winter() ? QColor(0xd5dbe4) : QColor(0xa8967f));
    canvas.painter.fillRect(QRectF(0, line - 24, canvas.width, 24),
                            Fade(line - 24, line, quay, Darker(quay, 0.45)));
    for (double x = 120; x < canvas.width; x += 330) {
        PaintStreetLamp(canvas, {x, line - 20}, 130);
    }
    PaintPeople(canvas, {canvas.width * 0.52, line - 16}, 84);
    PaintWater(canvas, line, 0.14);
    const std::array<QColor, 4> paints = {QColor(0x2f6a8c), QColor(0xc9503f), QColor(0x4f8a6a),
                                          QColor(0xe0a03f)};
    int boat = 0;
    for (double x = canvas.width * 0.12; x < canvas.width; x += 420) {
        const auto paint = static_cast<size_t>(boat % 4);
        PaintCutter(canvas, {x + 60, line + 62 + 40 * (boat % 2)}, 230, paints[paint]);
        ++boat;
    }
    PaintRowBoat(canvas, {canvas.width * 0.68, canvas.height * 0.88}, 300, QColor(0xd9cdb4));
    PaintBirds(canvas, 6, {canvas.width * 0.4, canvas.height * 0.15}, 110);
    PaintWeather(canvas, line);
}

void FerryScene(Canvas& canvas)
{
    const double line = canvas.height * 0.55;
    PaintBackdrop(canvas, line, 0.5);
    PaintHills(canvas, line - 120, line - 10, 4);
    PaintHouseRow(canvas, canvas.width * 0.02, canvas.width * 0.3, line - 6, 64, 0.5);
    PaintLighthouse(canvas, {canvas.width * 0.9, line - 4}, 220, true);
    PaintMist(canvas, line - 40, 260, 0.5);
    PaintFerry(canvas, {canvas.width * 0.52, line + 40}, std::min(620.0, canvas.width * 0.5));
    PaintWater(canvas, line + 40, 0.2);
    PaintMist(canvas, line + 60, 120, 0.4);
    const double pier = canvas.width * 0.12;
    PaintPier(canvas, {pier + 60, canvas.height * 0.8}, 90, {pier - 60, canvas.height + 50}, 320);
    PaintPeople(canvas, {pier + 52, canvas.height * 0.85}, 200);
    PaintBirds(canvas, 7, {canvas.width * 0.75, canvas.height * 0.25}, 120);
}

void BridgeScene(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    const double line = canvas.height * 0.66;
    PaintBackdrop(canvas, line, 0.3);
    PaintHills(canvas, canvas.height * 0.4, canvas.height * 0.52, 3);
    PaintChurch(canvas, {canvas.width * 0.27, line - 20}, canvas.height * 0.52, 0.22);
    PaintHouseRow(canvas, -30, canvas.width * 0.4, line - 8, 120, 0.12);
    PaintHouseRow(canvas, canvas.width * 0.62, canvas.width + 40, line - 8, 132, 0.1);
    for (int i = 0; i < 5; ++i) {
        PaintTree(canvas, {canvas.width * (0.41 + 0.05 * i), line - 4},
                  canvas.random.Between(130, 190), 0.14);
    }
    PaintBridge(canvas, canvas.width * 0.1, canvas.width * 0.9, canvas.height * 0.56, line + 26, 3);
    PaintPeople(canvas, {canvas.width * 0.5, canvas.height * 0.545}, 88);
    for (const double x : {0.16, 0.84}) {
        PaintStreetLamp(canvas, {canvas.width * x, canvas.height * 0.56}, 120);
    }
    PaintWater(canvas, line + 26, 0.16);

    canvas.painter.save();
    canvas.painter.setClipRect(QRectF(0, 0, canvas.width * 0.3, canvas.height));
    PaintReeds(canvas, {canvas.width * 0.06, canvas.height + 6}, 300, 190);
    canvas.painter.restore();
    PaintRowBoat(canvas, {canvas.width * 0.74, canvas.height * 0.87}, 220,
                 mood.Winter() ? QColor(0x4f6f8c) : QColor(0xc95a44));
    PaintWeather(canvas, line);
}
