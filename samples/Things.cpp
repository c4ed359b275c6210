// SPDX-License-Identifier: MIT
#include "Things.h"

void PaintKite(Canvas& canvas, QPointF at, QPointF hand, double size)
{
    const Mood& mood = canvas.mood;
    QPainterPath string(at);
    string.quadTo((at + hand) / 2 + QPointF(size * 0.2, size * 0.9), hand);
    canvas.Stroke(string, Faded(mood.Lit(QColor(0x5a5a60)), 0.65), 1.5);
    canvas.painter.save();
    canvas.painter.translate(at);
    canvas.painter.rotate(24);
    const QPointF top(0, -size * 0.62);
    const QPointF left(-size * 0.42, -size * 0.1);
    const QPointF right(size * 0.42, -size * 0.1);
    const QPointF low(0, size * 0.7);
    const QPointF cross(0, -size * 0.1);
    canvas.Fill(QPolygonF() << top << left << cross, mood.Lit(QColor(0xe2574c)));
    canvas.Fill(QPolygonF() << top << right << cross, mood.Lit(QColor(0xf2b84b)));
    canvas.Fill(QPolygonF() << low << left << cross, mood.Lit(QColor(0xf6d98a)));
    canvas.Fill(QPolygonF() << low << right << cross, mood.Lit(QColor(0x3f8fa8)));
    QPainterPath tail(low);
    tail.cubicTo(low + QPointF(size * 0.4, size * 0.4), low + QPointF(-size * 0.4, size * 0.7),
                 low + QPointF(size * 0.15, size * 1.2));
    canvas.Stroke(tail, mood.Lit(QColor(0x8a5a60)), 2.2);
    for (int i = 1; i < 5; ++i) {
        const QPointF knot = tail.pointAtPercent(i / 4.2);
        const double bow = size * 0.1;
        const QColor cloth = mood.Lit(i % 2 == 0 ? QColor(0xe2574c) : QColor(0x3f8fa8));
        canvas.Fill(QPolygonF() << knot << knot + QPointF(-bow, -bow * 0.6)
                                << knot + QPointF(-bow, bow * 0.6),
                    cloth);
        canvas.Fill(QPolygonF() << knot << knot + QPointF(bow, -bow * 0.6)
                                << knot + QPointF(bow, bow * 0.6),
                    cloth);
    }
    canvas.painter.restore();
}

void PaintBench(Canvas& canvas, QPointF foot, double width)
{
    const Mood& mood = canvas.mood;
    const QColor wood = mood.Lit(QColor(0x8a6242));
    const QColor iron = mood.Lit(QColor(0x3a3d44));
    for (const double side : {-0.4, 0.4}) {
        canvas.Line(foot + QPointF(side, 0) * width, foot + QPointF(side, -0.5) * width, iron,
                    width * 0.03);
    }
    for (const double board : {0.22, 0.36, 0.46}) {
        canvas.Line(foot + QPointF(-0.5, -board) * width, foot + QPointF(0.5, -board) * width, wood,
                    width * (board < 0.3 ? 0.07 : 0.055));
    }
    if (mood.Winter()) {
        for (const double board : {0.265, 0.5}) {
            canvas.Line(foot + QPointF(-0.49, -board) * width, foot + QPointF(0.49, -board) * width,
                        mood.Lit(QColor(0xffffff)), width * 0.045);
        }
    }
}

void PaintBlanket(Canvas& canvas, QPointF middle, double width)
{
    const Mood& mood = canvas.mood;
    QPolygonF cloth;
    cloth << middle + QPointF(-0.5, 0.1) * width << middle + QPointF(-0.36, -0.12) * width
          << middle + QPointF(0.4, -0.12) * width << middle + QPointF(0.52, 0.1) * width;
    canvas.Fill(cloth, mood.Lit(QColor(0xf4ead8)));
    const QColor check = Faded(mood.Lit(QColor(0xc9483f)), 0.55);
    for (int i = 0; i < 7; ++i) {
        const double along = (i + 0.5) / 7;
        canvas.Line(cloth[0] + (cloth[3] - cloth[0]) * along,
                    cloth[1] + (cloth[2] - cloth[1]) * along, check, width * 0.03);
    }
    for (const double along : {0.2, 0.5, 0.8}) {
        canvas.Line(cloth[1] + (cloth[0] - cloth[1]) * along,
                    cloth[2] + (cloth[3] - cloth[2]) * along, check, width * 0.024);
    }
    const QPointF basket = middle + QPointF(0.02, -0.03) * width;
    QPainterPath handle(basket + QPointF(-0.08, -0.06) * width);
    handle.quadTo(basket + QPointF(0, -0.24) * width, basket + QPointF(0.08, -0.06) * width);
    canvas.Stroke(handle, mood.Lit(QColor(0x80592f)), width * 0.016);
    canvas.painter.fillRect(
        QRectF(basket.x() - width * 0.1, basket.y() - width * 0.08, width * 0.2, width * 0.1),
        mood.Lit(QColor(0xb5823f)));
    canvas.painter.fillRect(
        QRectF(basket.x() - width * 0.11, basket.y() - width * 0.09, width * 0.22, width * 0.026),
        mood.Lit(QColor(0x946530)));
    for (const double x : {-0.2, 0.2}) {
        canvas.Ellipse(middle + QPointF(x, 0.03) * width, width * 0.045, width * 0.017,
                       mood.Lit(QColor(0xffffff)));
        canvas.Ellipse(middle + QPointF(x, 0.02) * width, width * 0.017, width * 0.015,
                       mood.Lit(QColor(0xd9503f)));
    }
}

void PaintBalloon(Canvas& canvas, QPointF basket, double height, const QColor& first,
                  const QColor& second)
{
    const Mood& mood = canvas.mood;
    const QPointF center = basket + QPointF(0, -height * 0.64);
    const double half = height * 0.33;
    const auto gore = [&](double reach) {
        QPainterPath shape(center + QPointF(0, -height * 0.36));
        shape.cubicTo(center + QPointF(reach * 1.3, -height * 0.36),
                      center + QPointF(reach * 1.35, height * 0.1),
                      center + QPointF(reach * 0.22, height * 0.36));
        shape.lineTo(center + QPointF(-reach * 0.22, height * 0.36));
        shape.cubicTo(center + QPointF(-reach * 1.35, height * 0.1),
                      center + QPointF(-reach * 1.3, -height * 0.36),
                      center + QPointF(0, -height * 0.36));
        return shape;
    };
    int stripe = 0;
    for (const double reach : {1.0, 0.78, 0.5, 0.18}) {
        canvas.Fill(gore(half * reach), mood.Lit(stripe++ % 2 == 0 ? first : second));
    }
    QRadialGradient round(center - QPointF(half * 0.4, half * 0.5), half * 2);
    round.setColorAt(0, QColor(255, 250, 230, 90));
    round.setColorAt(0.5, QColor(255, 250, 230, 0));
    round.setColorAt(1, QColor(20, 20, 50, 120));
    canvas.Fill(gore(half), round);
    const QColor wicker = mood.Lit(QColor(0x8a5f38));
    for (const double side : {-1.0, 1.0}) {
        canvas.Line(center + QPointF(side * half * 0.2, height * 0.36),
                    basket + QPointF(side * height * 0.045, -height * 0.09), wicker,
                    height * 0.006 + 0.8);
    }
    canvas.painter.fillRect(
        QRectF(basket.x() - height * 0.05, basket.y() - height * 0.09, height * 0.1, height * 0.09),
        wicker);
}

void PaintParasol(Canvas& canvas, QPointF foot, double height, const QColor& cloth)
{
    const Mood& mood = canvas.mood;
    canvas.Ellipse(foot + QPointF(height * 0.1, 0), height * 0.45, height * 0.06,
                   Faded(QColor(0x6a5a50), 0.3));
    canvas.Line(foot, foot + QPointF(0, -height), mood.Lit(QColor(0xf0e6d2)), height * 0.022);
    const double half = height * 0.55;
    const QPointF top = foot + QPointF(0, -height);
    for (int i = 0; i < 6; ++i) {
        const double left = -half + 2 * half * i / 6;
        const double right = -half + 2 * half * (i + 1) / 6;
        QPainterPath panel(top);
        panel.quadTo(top + QPointF(left * 0.75, height * 0.06), top + QPointF(left, height * 0.34));
        panel.quadTo(top + QPointF((left + right) / 2, height * 0.28),
                     top + QPointF(right, height * 0.34));
        panel.quadTo(top + QPointF(right * 0.75, height * 0.06), top);
        canvas.Fill(panel, mood.Lit(Darker(i % 2 == 0 ? cloth : QColor(0xfdf6e8), i * 0.025)));
    }
}

void PaintBale(Canvas& canvas, QPointF foot, double size)
{
    const Mood& mood = canvas.mood;
    const QColor straw = mood.Lit(QColor(0xd9b25c));
    canvas.Ellipse(foot + QPointF(size * 0.3, 0), size * 0.8, size * 0.09,
                   Faded(mood.Lit(QColor(0x6b5530)), 0.45));
    QPainterPath side;
    side.addRoundedRect(
        QRectF(foot.x() - size * 0.35, foot.y() - size * 0.9, size * 1.0, size * 0.92), size * 0.35,
        size * 0.45);
    canvas.Fill(side,
                Fade(foot.y() - size * 0.9, foot.y(), Lighter(straw, 0.2), Darker(straw, 0.3)));
    const QPointF face = foot + QPointF(-size * 0.12, -size * 0.45);
    for (int ring = 5; ring > 0; --ring) {
        const double radius = size * 0.46 * ring / 5;
        canvas.Ellipse(face, radius * 0.72, radius,
                       ring % 2 == 0 ? Darker(straw, 0.16) : Lighter(straw, 0.12));
    }
}

void PaintTent(Canvas& canvas, QPointF foot, double width)
{
    const Mood& mood = canvas.mood;
    const QPointF top = foot + QPointF(-0.1, -0.62) * width;
    canvas.Glow(foot + QPointF(0, -0.2) * width, width * 1.3, QColor(0xffb45a), 0.5);
    canvas.Fill(QPolygonF() << top << foot + QPointF(0.5, 0) * width
                            << foot + QPointF(0.16, 0.05) * width,
                mood.Lit(QColor(0xb05a34)));
    canvas.Fill(QPolygonF() << top << foot + QPointF(-0.5, 0.02) * width
                            << foot + QPointF(0.16, 0.05) * width,
                Fade(top.y(), foot.y(), QColor(0xe08a3c), QColor(0xffd58a)));
    canvas.Fill(QPolygonF() << top << foot + QPointF(-0.22, 0.03) * width
                            << foot + QPointF(-0.02, 0.04) * width,
                QColor(0xfff0c4));
}

void PaintFence(Canvas& canvas, double left, double right, double base, double height)
{
    const Mood& mood = canvas.mood;
    const QColor wood = mood.Lit(QColor(0x8a7460));
    for (const double rail : {0.45, 0.8}) {
        canvas.Line({left, base - height * rail}, {right, base - height * rail}, wood,
                    height * 0.09);
        if (mood.Winter()) {
            canvas.Line({left, base - height * (rail + 0.07)},
                        {right, base - height * (rail + 0.07)}, mood.Lit(QColor(0xffffff)),
                        height * 0.06);
        }
    }
    for (double x = left; x <= right; x += height * 1.3) {
        canvas.Line({x, base + height * 0.08},
                    {x, base - height * canvas.random.Between(0.96, 1.05)}, Darker(wood, 0.15),
                    height * 0.13);
    }
}
