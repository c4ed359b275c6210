// SPDX-License-Identifier: MIT
#include "Woods.h"

#include "Trees.h"

#include <cmath>

void PaintStems(Canvas& canvas, int layer, double ground)
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

void PaintSnowyRow(Canvas& canvas, int layer, double ground)
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

void PaintCanopy(Canvas& canvas, int layer)
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

void PaintOrchard(Canvas& canvas)
{
    const Mood& mood = canvas.mood;
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
}

void PaintWoods(Canvas& canvas, int layer, double base)
{
    const Mood& mood = canvas.mood;
    const double near = (layer + 1) / 3.0;
    const Ridge ridge(canvas.random, base, 26, 900);
    PaintHill(canvas, ridge, Mix(mood.hill, mood.ground, near), 0.4 - 0.34 * near);
    for (double x = -20; x < canvas.width + 20;
         x += canvas.random.Between(0.3, 0.9) * (40 + 60 * near)) {
        const double open = std::abs(x / canvas.width - 0.45);
        if (layer == 2 && open < 0.26)
            continue;
        PaintConifer(canvas, {x, ridge.At(x) + 12 * near},
                     (60 + 150 * near * near) * canvas.random.Between(0.7, 1.3),
                     0.42 - 0.38 * near);
    }
}

void PaintLitter(Canvas& canvas, int count, double top)
{
    for (int i = 0; i < count; ++i) {
        const double deep = std::sqrt(canvas.random.Between(0, 1));
        const QPointF at(canvas.random.Between(0, canvas.width),
                         top + (canvas.height - top) * deep);
        const auto leaf =
            static_cast<std::size_t>(canvas.random.Below(canvas.mood.Autumn() ? 4 : 2));
        canvas.Ellipse(at, 3 + 8 * deep, 1.6 + 4 * deep,
                       Faded(canvas.mood.Lit(canvas.mood.leaves[leaf]), 0.6));
    }
}

void PaintClearing(Canvas& canvas, double ground)
{
    const Mood& mood = canvas.mood;
    const QColor glow = Lighter(mood.Far(mood.Autumn() ? mood.leaves[2] : mood.ground, 0.75), 0.3);
    canvas.painter.fillRect(QRectF(0, 0, canvas.width, canvas.height),
                            Fade(0, ground, Mix(mood.skyMiddle, glow, 0.35), glow));
    canvas.Glow({canvas.width * 0.5, canvas.height * 0.42}, 620, mood.sun, 0.8);
}

void PaintBeams(Canvas& canvas, double end)
{
    for (int beam = 0; beam < 5; ++beam) {
        const double x = canvas.width * (0.3 + 0.11 * beam);
        const QPolygonF light{{{x + 60, -10}, {x + 110, -10}, {x - 120, end}, {x - 250, end}}};
        canvas.Fill(light, Fade(0, end, Faded(canvas.mood.sun, 0.2), Faded(canvas.mood.sun, 0)));
    }
}
