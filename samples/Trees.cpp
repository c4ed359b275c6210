// SPDX-License-Identifier: MIT
#include "Trees.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

struct Tones
{
    QColor dark;
    QColor middle;
    QColor light;
};

Tones TonesOf(const Mood& mood, const QColor& leaf, double distance)
{
    return {mood.Far(Darker(leaf, 0.25), distance), mood.Far(leaf, distance),
            mood.Far(Lighter(leaf, 0.28), distance)};
}

QColor Bark(const Mood& mood, double distance)
{
    return mood.Far(QColor(0x5a4536), distance);
}

void Trunk(Canvas& canvas, QPointF foot, double height, double width, const QColor& color)
{
    QPainterPath trunk(foot + QPointF(-width * 0.8, 0));
    trunk.quadTo(foot + QPointF(-width * 0.4, -height * 0.15),
                 foot + QPointF(-width * 0.32, -height));
    trunk.lineTo(foot + QPointF(width * 0.32, -height));
    trunk.quadTo(foot + QPointF(width * 0.4, -height * 0.15), foot + QPointF(width * 0.8, 0));
    canvas.Fill(trunk, Across(foot.x() - width * 0.5, foot.x() + width * 0.6, Lighter(color, 0.14),
                              Darker(color, 0.25)));
}

// A point inside the round crown; nearer the rim is as likely as nearer the middle.
QPointF InCrown(Random& random, double radiusX, double radiusY)
{
    const double turn = random.Between(0, 2 * std::numbers::pi);
    const double out = std::sqrt(random.Between(0, 1));
    return {std::cos(turn) * out * radiusX, std::sin(turn) * out * radiusY};
}

void Leaves(Canvas& canvas, QPointF center, double height, const Tones& tones)
{
    Random& random = canvas.random;
    const int dabs = static_cast<int>(std::min(1500.0, height * 2.2));
    const double size = std::max(2.2, height * 0.012);
    for (int i = 0; i < dabs; ++i) {
        const QPointF at = InCrown(random, height * 0.43, height * 0.36);
        // The light comes from the upper left.
        const double light = -(at.x() + at.y() * 1.6) / height + random.Between(-0.35, 0.35);
        const QColor tone = light > 0.15 ? tones.light : light > -0.2 ? tones.middle : tones.dark;
        canvas.Ellipse(center + at, size * random.Between(0.7, 1.4), size * random.Between(0.5, 1),
                       Faded(tone, 0.75));
    }
}

void Branch(Canvas& canvas, QPointF from, double turn, double length, double thickness, int depth)
{
    Random& random = canvas.random;
    const QPointF to = from + QPointF(std::sin(turn), -std::cos(turn)) * length;
    QPainterPath line(from);
    line.quadTo((from + to) / 2 + QPointF(random.Between(-0.1, 0.1) * length, 0), to);
    const QColor bark = canvas.painter.pen().color();
    canvas.painter.strokePath(line, QPen(bark, thickness, Qt::SolidLine, Qt::RoundCap));
    if (depth == 0 || thickness < 0.7) {
        return;
    }
    const int forks = depth > 4 && random.Chance(0.5) ? 3 : 2;
    for (int i = 0; i < forks; ++i) {
        const double spread = (i - (forks - 1) / 2.0) * random.Between(0.55, 0.85);
        Branch(canvas, to, turn + spread + random.Between(-0.14, 0.14),
               length * random.Between(0.68, 0.86), thickness * 0.64, depth - 1);
    }
}

} // namespace

void PaintLeafTree(Canvas& canvas, QPointF foot, double height, const QColor& leaf, double distance)
{
    Random& random = canvas.random;
    const Tones tones = TonesOf(canvas.mood, leaf, distance);
    const QColor bark = Bark(canvas.mood, distance);
    Trunk(canvas, foot, height * 0.55, std::max(2.5, height * 0.07), bark);
    const QPointF center = foot + QPointF(0, -height * 0.62);
    if (height > 120) {
        canvas.Line(foot + QPointF(0, -height * 0.2), center + QPointF(-height * 0.2, 0), bark,
                    height * 0.026);
        canvas.Line(foot + QPointF(0, -height * 0.25), center + QPointF(height * 0.2, 0), bark,
                    height * 0.024);
    }
    std::vector<QPointF> blobs;
    const int count = height > 60 ? 24 : 8;
    for (int i = 0; i < count; ++i) {
        // Spread evenly by the golden angle, so that the crown has no holes.
        const double turn = i * 2.39996;
        const double out = std::sqrt((i + 0.5) / count) * random.Between(0.88, 1.08);
        blobs.push_back(
            center + QPointF(std::cos(turn) * height * 0.31, std::sin(turn) * height * 0.24) * out);
    }
    const double radius = height * (count == 24 ? 0.13 : 0.16);
    for (const QPointF& blob : blobs) {
        canvas.Ellipse(blob + QPointF(0.008, 0.02) * height, radius, radius * 0.92, tones.dark);
    }
    for (const QPointF& blob : blobs) {
        canvas.Ellipse(blob - QPointF(0.012, 0.015) * height, radius * 0.86, radius * 0.78,
                       tones.middle);
    }
    for (const QPointF& blob : blobs) {
        const QPointF aside = blob - center;
        if (aside.x() + aside.y() < 0.05 * height) {
            canvas.Ellipse(blob - QPointF(0.04, 0.045) * height, radius * 0.5, radius * 0.42,
                           Faded(tones.light, 0.55));
        }
    }
    if (height > 60) {
        Leaves(canvas, center, height, tones);
    }
}

void PaintBareTree(Canvas& canvas, QPointF foot, double height, double distance)
{
    const QColor bark = canvas.mood.Far(QColor(0x4d4248), distance);
    const double width = height * 0.06;
    Trunk(canvas, foot, height * 0.3, width, bark);
    const int depth = height > 250 ? 7 : height > 90 ? 6 : 4;
    canvas.painter.setPen(bark);
    const QPointF fork = foot + QPointF(0, -height * 0.27);
    for (const double turn : {-0.55, -0.05, 0.5}) {
        Branch(canvas, fork, turn, height * 0.2, width * 0.52, depth);
    }
    canvas.painter.setPen(Qt::NoPen);
}

void PaintConifer(Canvas& canvas, QPointF foot, double height, double distance)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const QColor green = Mix(QColor(0x355f52), mood.groundDark, mood.Winter() ? 0.1 : 0.2);
    const Tones tones = TonesOf(mood, green, distance);
    Trunk(canvas, foot, height * 0.15, height * 0.045, Bark(mood, distance));
    const int tiers = height > 90 ? 8 : 5;
    const double half = height * random.Between(0.17, 0.22);
    for (int i = 0; i < tiers; ++i) {
        const double low = static_cast<double>(i) / tiers;
        const double y = foot.y() - height * (0.08 + 0.8 * low);
        const double reach = half * (1 - low * 0.86) * random.Between(0.9, 1.1);
        const double tall = height * (0.3 - 0.1 * low);
        QPainterPath tier(QPointF(foot.x() - reach, y));
        tier.quadTo(foot.x() - reach * 0.35, y - tall * 0.4, foot.x(), y - tall);
        tier.quadTo(foot.x() + reach * 0.35, y - tall * 0.4, foot.x() + reach, y);
        tier.quadTo(foot.x(), y + height * 0.035, foot.x() - reach, y);
        canvas.Fill(tier, Across(foot.x() - reach, foot.x() + reach, tones.middle, tones.dark));
        if (mood.Winter()) {
            QPainterPath snow(QPointF(foot.x() - reach * 0.92, y - tall * 0.03));
            snow.quadTo(foot.x() - reach * 0.35, y - tall * 0.42, foot.x(), y - tall);
            snow.quadTo(foot.x() + reach * 0.1, y - tall * 0.5, foot.x() + reach * 0.35,
                        y - tall * 0.3);
            snow.quadTo(foot.x() - reach * 0.1, y - tall * 0.3, foot.x() - reach * 0.92,
                        y - tall * 0.03);
            canvas.Fill(snow, mood.Far(QColor(0xf2f6fb), distance * 0.8));
        }
    }
}

void PaintTree(Canvas& canvas, QPointF foot, double height, double distance)
{
    if (canvas.mood.Winter()) {
        PaintBareTree(canvas, foot, height, distance);
        return;
    }
    const auto choice = static_cast<size_t>(canvas.random.Below(4));
    PaintLeafTree(canvas, foot, height, canvas.mood.leaves[choice], distance);
}

void PaintTreeLine(Canvas& canvas, const Ridge& ridge, double size, double distance)
{
    Random& random = canvas.random;
    double x = random.Between(-50, 120);
    while (x < canvas.width + 50) {
        const int group = 2 + random.Below(6);
        const bool conifers = random.Chance(canvas.mood.Winter() ? 0.7 : 0.35);
        for (int i = 0; i < group; ++i) {
            const double height = size * random.Between(0.6, 1.15);
            const QPointF foot(x, ridge.At(x) + size * 0.08);
            if (conifers) {
                PaintConifer(canvas, foot, height * 1.3, distance);
            } else {
                PaintTree(canvas, foot, height, distance);
            }
            x += size * random.Between(0.3, 0.75);
        }
        x += size * random.Between(2, 9);
    }
}

void PaintBush(Canvas& canvas, QPointF foot, double size, double distance)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const QColor leaf =
        mood.Winter() ? QColor(0xe6edf5) : Mix(mood.groundDark, mood.leaves[0], 0.5);
    const Tones tones = TonesOf(mood, leaf, distance);
    for (int i = 0; i < 9; ++i) {
        const QPointF at =
            foot + QPointF(random.Between(-0.5, 0.5), random.Between(-0.4, -0.1)) * size;
        const double radius = size * random.Between(0.14, 0.22);
        canvas.Ellipse(at, radius, radius * 0.9, tones.dark);
        canvas.Ellipse(at - QPointF(0.03, 0.05) * size, radius * 0.8, radius * 0.66, tones.middle);
    }
}

void PaintReeds(Canvas& canvas, QPointF foot, double width, double height)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const QColor green =
        Mix(mood.Winter() ? QColor(0x9a8a6c) : mood.groundDark, QColor(0x3f5238), 0.35);
    const int stems = static_cast<int>(width / 5);
    for (int i = 0; i < stems; ++i) {
        const QPointF root =
            foot + QPointF(random.Between(-0.5, 0.5) * width, random.Between(0, 12));
        const double tall = height * random.Between(0.5, 1.0);
        const QPointF tip = root + QPointF(random.Between(-0.22, 0.3) * tall, -tall);
        QPainterPath stem(root);
        stem.quadTo(root + QPointF(0, -tall * 0.6), tip);
        canvas.Stroke(stem, mood.Lit(Mix(green, QColor(0x9aa45c), random.Between(0, 0.5))), 2.6);
        if (i % 5 == 0 && !mood.Spring()) {
            canvas.Line(tip, tip + (root - tip) * 0.14, mood.Lit(QColor(0x6b4a30)), 7);
        }
    }
}
