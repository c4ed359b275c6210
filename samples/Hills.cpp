// SPDX-License-Identifier: MIT
#include "Hills.h"

#include "Trees.h"

#include <algorithm>
#include <cmath>
#include <numbers>

Ridge::Ridge(Random& random, double base, double amplitude, double wavelength)
    : base_(base), amplitude_(amplitude)
{
    for (size_t i = 0; i < waves_.size(); ++i) {
        const double octave = std::pow(2.1, static_cast<double>(i));
        waves_[i] = 2 * std::numbers::pi / (wavelength / octave * random.Between(0.85, 1.2));
        phases_[i] = random.Between(0, 2 * std::numbers::pi);
    }
}

double Ridge::At(double x) const
{
    double sum = 0;
    double share = 0.6;
    for (size_t i = 0; i < waves_.size(); ++i) {
        sum += share * std::sin(x * waves_[i] + phases_[i]);
        share *= 0.42;
    }
    return base_ + amplitude_ * sum;
}

void PaintHill(Canvas& canvas, const Ridge& ridge, const QColor& color, double distance)
{
    QPolygonF shape;
    double top = canvas.height;
    for (double x = -10; x <= canvas.width + 10; x += 6) {
        shape << QPointF(x, ridge.At(x));
        top = std::min(top, shape.last().y());
    }
    shape << QPointF(canvas.width + 10, canvas.height + 10) << QPointF(-10, canvas.height + 10);
    const QColor upper = canvas.mood.Far(color, distance);
    const QColor lower = canvas.mood.Far(color, std::min(0.9, distance + 0.3));
    canvas.Fill(shape, Fade(top, top + 260, upper, lower));
}

void PaintHills(Canvas& canvas, double horizon, double nearest, int layers)
{
    const Mood& mood = canvas.mood;
    for (int i = 0; i < layers; ++i) {
        const double near = (i + 1.0) / layers;
        const double base = horizon + (nearest - horizon) * near * near;
        const Ridge ridge(canvas.random, base, 24 + 34 * near, 620 + 380 * near);
        const double distance = 0.82 - 0.62 * near;
        const QColor color = Mix(mood.hill, mood.ground, near * 0.8);
        PaintHill(canvas, ridge, color, distance);
        if (near > 0.3) {
            PaintTreeLine(canvas, ridge, 14 + 38 * near, distance);
        }
    }
}

namespace {

QPolygonF Jagged(Random& random, QPointF from, QPointF to, double rough)
{
    QPolygonF line;
    const int steps = 12;
    for (int i = 0; i <= steps; ++i) {
        const double along = static_cast<double>(i) / steps;
        const double inner = std::min(1.0, 4 * along * (1 - along) + 0.1);
        line << from + (to - from) * along +
                    QPointF(random.Between(-1, 1), random.Between(-0.6, 0.6)) * rough * inner;
    }
    return line;
}

QPolygonF Joined(const QPolygonF& first, const QPolygonF& second)
{
    QPolygonF result = first;
    for (auto point = second.rbegin(); point != second.rend(); ++point) {
        result << *point;
    }
    return result;
}

// Snow ends in tongues, so its edge goes up and down across the slope.
QPolygonF SnowEdge(Random& random, QPointF summit, double half, double height, double share)
{
    QPolygonF cap;
    cap << summit + QPointF(0, -height);
    const double low = height * share;
    const int teeth = 10;
    for (int i = 0; i <= teeth; ++i) {
        const double along = 2.0 * i / teeth - 1;
        const double tongue = (i % 2 == 0 ? 0.2 : -0.25) + random.Between(-0.15, 0.15);
        cap << summit + QPointF(along * half, low * (1 + tongue));
    }
    return cap;
}

void Peak(Canvas& canvas, QPointF summit, double half, double base, double distance, double snow)
{
    Random& random = canvas.random;
    const double height = base - summit.y();
    const QPolygonF left = Jagged(random, summit, {summit.x() - half, base}, half * 0.05);
    const QPolygonF right = Jagged(random, summit, {summit.x() + half, base}, half * 0.05);
    const QPolygonF spine =
        Jagged(random, summit, {summit.x() + half * random.Between(-0.15, 0.3), base}, half * 0.14);
    QPainterPath whole;
    whole.addPolygon(Joined(left, right));
    QPainterPath shade;
    shade.addPolygon(Joined(spine, right));

    const Mood& mood = canvas.mood;
    const QColor rock = Mix(mood.hill, QColor(0x7f8796), 0.6);
    const double low = std::min(0.92, distance + 0.35);
    canvas.Fill(whole, Fade(summit.y(), base, mood.Far(rock, distance), mood.Far(rock, low)));
    canvas.Fill(
        shade, Fade(summit.y(), base, mood.Far(Darker(rock, 0.32), distance), mood.Far(rock, low)));
    if (snow <= 0) {
        return;
    }
    QPainterPath cap;
    cap.addPolygon(SnowEdge(random, summit, half, height, snow));
    cap.closeSubpath();
    QColor white =
        mood.Lamps() || mood.Dawn() ? Mix(QColor(0xffffff), mood.skyLow, 0.4) : QColor(0xfdfdfd);
    canvas.Fill(cap.intersected(whole), mood.Far(white, distance * 0.55));
    canvas.Fill(cap.intersected(shade), mood.Far(QColor(0xa9c0dc), distance * 0.7));
}

} // namespace

void PaintMountains(Canvas& canvas, double base, double height, double distance, double snow)
{
    Random& random = canvas.random;
    struct Place
    {
        double x;
        double height;
    };
    std::vector<Place> places;
    const double step = height * 0.62;
    for (double x = -step * 0.3; x < canvas.width + step * 0.5;
         x += step * random.Between(0.7, 1.2)) {
        places.push_back({x, height * random.Between(0.5, 1.0)});
    }
    std::sort(places.begin(), places.end(),
              [](const Place& a, const Place& b) { return a.height > b.height; });
    for (const Place& place : places) {
        const double nearer = distance - 0.12 * (1 - place.height / height);
        const double reach = std::max(0.0, snow - (1 - place.height / height) * 0.5);
        Peak(canvas, {place.x, base - place.height}, place.height * random.Between(0.75, 1.0), base,
             nearer, reach);
    }
}

void PaintGround(Canvas& canvas, const Ridge& ridge)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    PaintHill(canvas, ridge, mood.ground, 0.04);
    double top = canvas.height;
    for (double x = 0; x <= canvas.width; x += 40) {
        top = std::min(top, ridge.At(x));
    }
    canvas.painter.save();
    QPainterPath area(QPointF(0, canvas.height));
    for (double x = 0; x <= canvas.width + 20; x += 20) {
        area.lineTo(x, ridge.At(x));
    }
    area.lineTo(canvas.width, canvas.height);
    canvas.painter.setClipPath(area);
    const QColor shade = mood.Lit(mood.groundDark);
    canvas.painter.fillRect(QRectF(0, top, canvas.width, canvas.height - top),
                            Fade(top, canvas.height, Faded(shade, 0), Faded(shade, 0.75)));
    const int strokes = static_cast<int>(canvas.width * (canvas.height - top) / 420);
    for (int i = 0; i < strokes; ++i) {
        const double deep = std::sqrt(random.Between(0, 1));
        const QPointF at(random.Between(0, canvas.width), top + (canvas.height - top) * deep);
        const QColor tone = random.Chance(0.5) ? mood.Lit(Lighter(mood.ground, 0.2)) : shade;
        const double size = 4 + 16 * deep;
        if (mood.Winter()) {
            canvas.Line(at, at + QPointF(size * 3, random.Between(-2, 2)), Faded(tone, 0.13), 3);
        } else {
            canvas.Line(at, at + QPointF(random.Between(-0.4, 0.4) * size, -size),
                        Faded(tone, 0.32), 1.4 + deep);
        }
    }
    canvas.painter.restore();
}

void PaintPath(Canvas& canvas, QPointF far, QPointF near, double width, const QColor& color)
{
    QPolygonF left;
    QPolygonF right;
    const int steps = 40;
    const double swing = (near.y() - far.y()) * 0.22;
    for (int i = 0; i <= steps; ++i) {
        const double along = static_cast<double>(i) / steps;
        const double deep = along * along;
        const double x = far.x() + (near.x() - far.x()) * along +
                         std::sin(along * 2 * std::numbers::pi) * swing * (0.3 + along);
        const double half = width * (0.03 + 0.97 * deep * along) / 2;
        const double y = far.y() + (near.y() - far.y()) * (0.25 * along + 0.75 * deep);
        left << QPointF(x - half, y);
        right << QPointF(x + half, y);
    }
    const Mood& mood = canvas.mood;
    canvas.Fill(Joined(left, right), Fade(far.y(), near.y(), mood.Far(color, 0.25),
                                          mood.Far(Darker(color, 0.08), 0.02)));
}

void PaintFlowers(Canvas& canvas, const Ridge& ridge, int count, double size)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const std::array<QColor, 5> colors = {QColor(0xe8604c), QColor(0xfdfaf0), QColor(0xf4c542),
                                          QColor(0x8a7cc8), QColor(0xf09ab0)};
    for (int i = 0; i < count; ++i) {
        // From the far end to the near one, so that the near flowers cover the far ones.
        const double deep = std::pow(static_cast<double>(i) / count, 0.75);
        const double x = random.Between(-20, canvas.width + 20);
        const double top = ridge.At(x);
        const QPointF at(x, top + (canvas.height + size * 2 - top) * deep);
        const double radius = size * (0.12 + 0.88 * deep * deep) * random.Between(0.7, 1.15);
        const QColor color =
            mood.Far(colors[static_cast<size_t>(random.Below(5))], 0.2 * (1 - deep));
        const QPointF foot = at + QPointF(random.Between(-1, 1) * radius, radius * 4);
        canvas.Line(at, foot, mood.Lit(mood.groundDark), std::max(1.0, radius * 0.2));
        if (radius < 5) {
            canvas.Ellipse(at, radius, radius * 0.8, color);
            continue;
        }
        for (int petal = 0; petal < 5; ++petal) {
            const double turn = petal * 2 * std::numbers::pi / 5 + i;
            const QPointF tip(std::cos(turn) * radius * 0.62, std::sin(turn) * radius * 0.5);
            canvas.Ellipse(at + tip, radius * 0.52, radius * 0.45,
                           petal % 2 == 0 ? color : Lighter(color, 0.18));
        }
        canvas.Ellipse(at, radius * 0.3, radius * 0.26, mood.Lit(QColor(0xf2d15c)));
    }
}
