// SPDX-License-Identifier: MIT
#include "Things.h"

namespace {

// A hull seen from the side, bow to the right, with its waterline at the point.
QPainterPath Hull(QPointF at, double length, double depth)
{
    QPainterPath hull(at + QPointF(-length * 0.5, -depth * 0.85));
    hull.quadTo(at + QPointF(0, -depth * 0.55), at + QPointF(length * 0.54, -depth * 1.15));
    hull.quadTo(at + QPointF(length * 0.46, depth * 0.05),
                at + QPointF(length * 0.34, depth * 0.08));
    hull.lineTo(at + QPointF(-length * 0.42, depth * 0.08));
    hull.quadTo(at + QPointF(-length * 0.48, -depth * 0.2),
                at + QPointF(-length * 0.5, -depth * 0.85));
    return hull;
}

void FloatHull(Canvas& canvas, QPointF at, double length, double depth, const QColor& paint)
{
    const Mood& mood = canvas.mood;
    const QColor color = mood.Lit(paint);
    canvas.Ellipse(at + QPointF(0, depth * 0.12), length * 0.5, depth * 0.22,
                   Faded(Darker(mood.water, 0.6), 0.5));
    const QPainterPath hull = Hull(at, length, depth);
    canvas.Fill(hull, Fade(at.y() - depth, at.y(), Lighter(color, 0.12), Darker(color, 0.3)));
    QPainterPath rim(at + QPointF(-length * 0.5, -depth * 0.85));
    rim.quadTo(at + QPointF(0, -depth * 0.55), at + QPointF(length * 0.54, -depth * 1.15));
    canvas.Stroke(rim, mood.Lit(QColor(0xf3e9d6)), depth * 0.14);
}

} // namespace

void PaintRowBoat(Canvas& canvas, QPointF at, double length, const QColor& paint)
{
    const Mood& mood = canvas.mood;
    const double depth = length * 0.17;
    // What shows in the water below.
    canvas.painter.save();
    canvas.painter.setOpacity(0.3);
    canvas.Ellipse(at + QPointF(0, depth * 0.5), length * 0.44, depth * 0.5,
                   Darker(mood.Lit(paint), 0.2));
    canvas.painter.restore();
    QPainterPath inside(at + QPointF(-length * 0.5, -depth * 0.85));
    inside.quadTo(at + QPointF(-length * 0.1, -depth * 1.3),
                  at + QPointF(length * 0.54, -depth * 1.15));
    inside.quadTo(at + QPointF(0, -depth * 0.5), at + QPointF(-length * 0.5, -depth * 0.85));
    canvas.Fill(inside, mood.Lit(QColor(0x6d4a34)));
    FloatHull(canvas, at, length, depth, paint);
    canvas.Line(at + QPointF(-length * 0.05, -depth * 0.75),
                at + QPointF(-length * 0.3, depth * 0.35), mood.Lit(QColor(0xb08a5c)),
                length * 0.014);
    canvas.Ellipse(at + QPointF(-length * 0.31, depth * 0.4), length * 0.05, depth * 0.07,
                   Faded(Lighter(mood.skyMiddle, 0.4), 0.5));
}

void PaintSailBoat(Canvas& canvas, QPointF at, double height, const QColor& sail)
{
    const Mood& mood = canvas.mood;
    const QColor cloth = mood.Lit(sail);
    canvas.Line(at + QPointF(0, -height * 0.1), at + QPointF(0, -height),
                mood.Lit(QColor(0x5b4437)), height * 0.014);
    QPainterPath mainsail(at + QPointF(-height * 0.02, -height * 0.97));
    mainsail.quadTo(at + QPointF(-height * 0.3, -height * 0.5),
                    at + QPointF(-height * 0.4, -height * 0.2));
    mainsail.quadTo(at + QPointF(-height * 0.2, -height * 0.16),
                    at + QPointF(-height * 0.02, -height * 0.19));
    canvas.Fill(mainsail,
                Across(at.x() - height * 0.4, at.x(), Lighter(cloth, 0.15), Darker(cloth, 0.12)));
    QPainterPath jib(at + QPointF(height * 0.02, -height * 0.9));
    jib.quadTo(at + QPointF(height * 0.2, -height * 0.45),
               at + QPointF(height * 0.31, -height * 0.17));
    jib.quadTo(at + QPointF(height * 0.15, -height * 0.15),
               at + QPointF(height * 0.03, -height * 0.18));
    canvas.Fill(jib, mood.Lit(QColor(0xfdf6e6)));
    FloatHull(canvas, at, height * 0.72, height * 0.12, QColor(0x8a4a3c));
}

void PaintCutter(Canvas& canvas, QPointF at, double length, const QColor& paint)
{
    const Mood& mood = canvas.mood;
    const QColor mast = mood.Lit(QColor(0x5b4437));
    canvas.Line(at + QPointF(length * 0.12, -length * 0.12),
                at + QPointF(length * 0.12, -length * 0.72), mast, length * 0.018);
    canvas.Line(at + QPointF(length * 0.12, -length * 0.7),
                at + QPointF(length * 0.53, -length * 0.23), Faded(mast, 0.7), 1.6);
    canvas.Line(at + QPointF(length * 0.12, -length * 0.7),
                at + QPointF(-length * 0.48, -length * 0.2), Faded(mast, 0.7), 1.6);
    const QRectF cabin(at.x() - length * 0.3, at.y() - length * 0.36, length * 0.28, length * 0.26);
    canvas.painter.fillRect(cabin, mood.Lit(QColor(0xf5ecda)));
    canvas.painter.fillRect(QRectF(cabin.left() - length * 0.02, cabin.top() - length * 0.03,
                                   length * 0.32, length * 0.045),
                            mood.Lit(QColor(0xb5503f)));
    for (const double x : {0.04, 0.16}) {
        canvas.painter.fillRect(QRectF(cabin.left() + length * x, cabin.top() + length * 0.05,
                                       length * 0.08, length * 0.07),
                                mood.Lamps() ? QColor(0xffce80) : mood.Lit(QColor(0x5a7a8c)));
    }
    if (mood.Lamps()) {
        canvas.Glow(cabin.center(), length * 0.4, QColor(0xffc070), 0.4);
    }
    FloatHull(canvas, at, length, length * 0.19, paint);
}

void PaintFerry(Canvas& canvas, QPointF at, double length)
{
    const Mood& mood = canvas.mood;
    const QColor white = mood.Lit(QColor(0xfaf5ea));
    const QColor glass = mood.Lamps() || mood.Fog() ? QColor(0xffd890) : mood.Lit(QColor(0x5a7a8c));
    const double unit = length / 100;
    QPainterPath funnel;
    funnel.addRect(QRectF(at.x() - 12 * unit, at.y() - 44 * unit, 9 * unit, 16 * unit));
    canvas.Fill(funnel, mood.Lit(QColor(0xc9503f)));
    canvas.painter.fillRect(QRectF(at.x() - 12 * unit, at.y() - 44 * unit, 9 * unit, 4 * unit),
                            mood.Lit(QColor(0x2f3a48)));
    for (int deck = 0; deck < 2; ++deck) {
        const double wide = (76 - deck * 22) * unit;
        const QRectF house(at.x() - wide * 0.52, at.y() - (22 + deck * 9.5) * unit, wide,
                           10 * unit);
        canvas.painter.fillRect(house,
                                Fade(house.top(), house.bottom(), white, Darker(white, 0.12)));
        for (double x = house.left() + 3 * unit; x < house.right() - 4 * unit; x += 6.5 * unit) {
            canvas.painter.fillRect(QRectF(x, house.top() + 2.8 * unit, 4 * unit, 3.6 * unit),
                                    glass);
        }
        canvas.painter.fillRect(
            QRectF(house.left() - unit, house.top() - unit, wide + 2 * unit, 1.4 * unit),
            Darker(white, 0.2));
    }
    canvas.Line(at + QPointF(20, -32) * unit, at + QPointF(20, -52) * unit,
                mood.Lit(QColor(0x5b6470)), 0.9 * unit);
    FloatHull(canvas, at, length, 13 * unit, QColor(0x2f5878));
    for (const double lamp : {20.0, 46.0}) {
        canvas.Glow(at + QPointF(lamp, lamp > 40 ? -15 : -52) * unit, 14 * unit, QColor(0xffe2a0),
                    0.6);
    }
}

void PaintPier(Canvas& canvas, QPointF far, double farWidth, QPointF near, double nearWidth)
{
    const Mood& mood = canvas.mood;
    const QColor wood = mood.Lit(mood.Winter() ? QColor(0xc9c4c4) : QColor(0xa58462));
    const int planks = 26;
    const auto edge = [&](double along, double side) {
        const double deep = along * along * 0.7 + along * 0.3;
        const double x = far.x() + (near.x() - far.x()) * deep;
        return QPointF(x + side * (farWidth + (nearWidth - farWidth) * deep) / 2,
                       far.y() + (near.y() - far.y()) * deep);
    };
    for (int post = 0; post < 6; ++post) {
        const double along = post / 6.0;
        for (const double side : {-1.0, 1.0}) {
            const double thick = 6 + 14 * along;
            const QPointF top = edge(along, side * 0.96);
            canvas.Line(top + QPointF(0, -thick * 1.6), top + QPointF(0, thick * 3.2),
                        Darker(wood, 0.45), thick);
        }
    }
    for (int i = 0; i < planks; ++i) {
        const double from = static_cast<double>(i) / planks;
        const double to = (i + 0.93) / planks;
        QPolygonF plank;
        plank << edge(from, -1) << edge(from, 1) << edge(to, 1) << edge(to, -1);
        canvas.Fill(plank, Mix(wood, Darker(wood, 0.3), canvas.random.Between(0, 0.5)));
    }
}
