// SPDX-License-Identifier: MIT
#include "Things.h"

namespace {

void SnowBall(Canvas& canvas, QPointF center, double radius)
{
    const Mood& mood = canvas.mood;
    QRadialGradient round(center - QPointF(radius * 0.35, radius * 0.4), radius * 1.6);
    round.setColorAt(0, mood.Lit(QColor(0xffffff)));
    round.setColorAt(0.55, mood.Lit(QColor(0xe9f0f8)));
    round.setColorAt(1, mood.Lit(QColor(0x9db6d2)));
    canvas.Ellipse(center, radius, radius * 0.96, round);
}

} // namespace

void PaintSnowman(Canvas& canvas, QPointF foot, double height)
{
    const Mood& mood = canvas.mood;
    const auto at = [&](double x, double y) { return foot + QPointF(x, -y) * height; };
    canvas.Ellipse(at(0.12, 0.0), height * 0.42, height * 0.05,
                   Faded(mood.Lit(QColor(0x7d97ba)), 0.5));
    const QColor wood = mood.Lit(QColor(0x5d4433));
    for (const double side : {-1.0, 1.0}) {
        canvas.Line(at(side * 0.15, 0.52), at(side * 0.4, 0.66), wood, height * 0.018);
        canvas.Line(at(side * 0.34, 0.626), at(side * 0.38, 0.73), wood, height * 0.013);
        canvas.Line(at(side * 0.36, 0.637), at(side * 0.45, 0.63), wood, height * 0.012);
    }
    SnowBall(canvas, at(0, 0.2), height * 0.235);
    SnowBall(canvas, at(0, 0.5), height * 0.175);
    SnowBall(canvas, at(0, 0.735), height * 0.125);
    const QColor coal = mood.Lit(QColor(0x2d2b33));
    for (const double button : {0.42, 0.5, 0.57}) {
        canvas.Ellipse(at(0.01, button), height * 0.015, height * 0.015, coal);
    }
    canvas.Ellipse(at(-0.04, 0.765), height * 0.014, height * 0.016, coal);
    canvas.Ellipse(at(0.05, 0.765), height * 0.014, height * 0.016, coal);
    for (int i = -2; i <= 2; ++i) {
        canvas.Ellipse(at(0.005 + i * 0.022, 0.682 + i * i * 0.005), height * 0.007, height * 0.007,
                       coal);
    }
    canvas.Fill(QPolygonF() << at(0, 0.75) << at(0.005, 0.715) << at(0.15, 0.722),
                mood.Lit(QColor(0xe8843c)));
    const QColor scarf = mood.Lit(QColor(0xc9483f));
    QPainterPath wrap(at(-0.115, 0.645));
    wrap.quadTo(at(0, 0.58), at(0.115, 0.645));
    canvas.Stroke(wrap, scarf, height * 0.05);
    canvas.Fill(QPolygonF() << at(0.05, 0.62) << at(0.11, 0.62) << at(0.14, 0.43)
                            << at(0.075, 0.42),
                Darker(scarf, 0.1));
    const QColor felt = mood.Lit(QColor(0x35384a));
    canvas.Fill(QPolygonF() << at(-0.095, 0.835) << at(-0.085, 1.0) << at(0.09, 1.0)
                            << at(0.1, 0.835),
                felt);
    canvas.Line(at(-0.15, 0.838), at(0.15, 0.838), felt, height * 0.026);
    canvas.Line(at(-0.088, 0.872), at(0.092, 0.872), scarf, height * 0.03);
}

void PaintLantern(Canvas& canvas, QPointF foot, double height)
{
    const Mood& mood = canvas.mood;
    const auto at = [&](double x, double y) { return foot + QPointF(x, -y) * height; };
    const QColor iron = mood.Lit(QColor(0x33363f));
    canvas.Glow(at(0, 0.38), height * 1.5, QColor(0xffb14d), 0.6);
    QPainterPath ring;
    ring.addEllipse(at(0, 0.93), height * 0.07, height * 0.08);
    canvas.Stroke(ring, iron, height * 0.022);
    QPolygonF glass;
    glass << at(-0.2, 0.08) << at(-0.23, 0.62) << at(0.23, 0.62) << at(0.2, 0.08);
    QRadialGradient shine(at(0, 0.3), height * 0.42);
    shine.setColorAt(0, QColor(0xfff2c0));
    shine.setColorAt(0.45, QColor(0xffc766));
    shine.setColorAt(1, QColor(0xb8682f));
    canvas.Fill(glass, shine);
    canvas.painter.fillRect(
        QRectF(at(-0.065, 0.26), at(0.065, 0.08)),
        Fade(at(0, 0.26).y(), at(0, 0.08).y(), QColor(0xfff8e4), QColor(0xeccf9c)));
    QPainterPath flame(at(0, 0.45));
    flame.cubicTo(at(0.07, 0.34), at(0.045, 0.27), at(0, 0.27));
    flame.cubicTo(at(-0.045, 0.27), at(-0.07, 0.34), at(0, 0.45));
    canvas.Fill(flame, QColor(0xfffdf0));
    canvas.Glow(at(0, 0.34), height * 0.26, QColor(0xfff0b0), 0.9);
    for (const double side : {-1.0, 0.0, 1.0}) {
        canvas.Line(at(side * 0.2, 0.08), at(side * 0.23, 0.62), iron,
                    height * (side == 0 ? 0.012 : 0.026));
    }
    canvas.Fill(QPolygonF() << at(-0.25, 0.0) << at(-0.25, 0.085) << at(0.25, 0.085)
                            << at(0.25, 0.0),
                iron);
    canvas.Fill(QPolygonF() << at(-0.29, 0.61) << at(-0.1, 0.82) << at(0.1, 0.82) << at(0.29, 0.61),
                iron);
    canvas.Line(at(-0.07, 0.84), at(0.07, 0.84), iron, height * 0.05);
    if (mood.Winter()) {
        QPainterPath snow(at(-0.28, 0.63));
        snow.quadTo(at(-0.15, 0.84), at(-0.08, 0.84));
        snow.lineTo(at(0.1, 0.84));
        snow.quadTo(at(0.14, 0.78), at(0.2, 0.71));
        snow.quadTo(at(0.05, 0.78), at(-0.04, 0.72));
        snow.quadTo(at(-0.14, 0.74), at(-0.28, 0.63));
        canvas.Fill(snow, mood.Lit(QColor(0xffffff)));
    }
}

void PaintFire(Canvas& canvas, QPointF foot, double height)
{
    const auto at = [&](double x, double y) { return foot + QPointF(x, -y) * height; };
    canvas.Glow(at(0, 0.4), height * 3.6, QColor(0xff9a3d), 0.6);
    const QColor log(0x6b4228);
    canvas.Line(at(-0.45, 0.02), at(0.4, 0.16), log, height * 0.13);
    canvas.Line(at(0.45, 0.0), at(-0.4, 0.18), Darker(log, 0.25), height * 0.13);
    double size = 1;
    for (const QColor& color : {QColor(0xf2792f), QColor(0xffb347), QColor(0xfff0b4)}) {
        QPainterPath flame(at(0.04 * size, 0.1 + size));
        flame.cubicTo(at(0.1 * size, 0.1 + 0.6 * size), at(0.42 * size, 0.4 * size),
                      at(0.26 * size, 0.12));
        flame.quadTo(at(0, 0.04), at(-0.26 * size, 0.12));
        flame.cubicTo(at(-0.4 * size, 0.4 * size), at(-0.06 * size, 0.5 * size),
                      at(0.04 * size, 0.1 + size));
        canvas.Fill(flame, color);
        size *= 0.62;
    }
}
