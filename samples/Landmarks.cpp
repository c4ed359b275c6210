// SPDX-License-Identifier: MIT
#include "Town.h"

#include <array>
#include <cmath>
#include <numbers>

void PaintChurch(Canvas& canvas, QPointF foot, double height, double distance)
{
    const Mood& mood = canvas.mood;
    const double half = height * 0.085;
    const double body = height * 0.58;
    const QColor stone = mood.Far(QColor(0xd9c7a8), distance);
    const QColor roof = mood.Far(QColor(0x5f7f7c), distance);
    const QColor opening = mood.Lamps() ? QColor(0xffc873) : mood.Far(QColor(0x4d4f60), distance);
    const QRectF tower(foot.x() - half, foot.y() - body, half * 2, body);
    canvas.painter.fillRect(
        tower, Across(tower.left(), tower.right(), Lighter(stone, 0.1), Darker(stone, 0.22)));
    for (const double band : {0.35, 0.68, 1.0}) {
        canvas.painter.fillRect(
            QRectF(foot.x() - half * 1.08, foot.y() - body * band - 3, half * 2.16, height * 0.012),
            Darker(stone, 0.18));
    }
    for (const double side : {-0.45, 0.45}) {
        QPainterPath arch;
        arch.addRoundedRect(
            QRectF(foot.x() + half * (side - 0.2), foot.y() - body * 0.94, half * 0.4, body * 0.16),
            half * 0.2, half * 0.2);
        canvas.Fill(arch, opening);
    }
    const QPointF clock(foot.x(), foot.y() - body * 0.56);
    canvas.Ellipse(clock, half * 0.5, half * 0.5, mood.Far(QColor(0x3d4660), distance));
    canvas.Ellipse(clock, half * 0.42, half * 0.42,
                   mood.Lamps() ? QColor(0xffeec4) : mood.Far(QColor(0xfaf5e6), distance));
    canvas.Line(clock, clock + QPointF(half * 0.2, -half * 0.1), QColor(0x3a3540), half * 0.06);
    canvas.Line(clock, clock + QPointF(0, -half * 0.32), QColor(0x3a3540), half * 0.05);

    const double eaves = foot.y() - body;
    QPainterPath spire(QPointF(foot.x() - half * 1.15, eaves));
    spire.cubicTo(foot.x() - half * 1.2, eaves - half * 1.3, foot.x() - half * 0.45,
                  eaves - half * 1.2, foot.x() - half * 0.42, eaves - half * 2.0);
    spire.lineTo(foot.x(), foot.y() - height * 0.97);
    spire.lineTo(foot.x() + half * 0.42, eaves - half * 2.0);
    spire.cubicTo(foot.x() + half * 0.45, eaves - half * 1.2, foot.x() + half * 1.2,
                  eaves - half * 1.3, foot.x() + half * 1.15, eaves);
    canvas.Fill(spire,
                Across(foot.x() - half, foot.x() + half, Lighter(roof, 0.15), Darker(roof, 0.3)));
    canvas.Line({foot.x(), foot.y() - height * 0.96}, {foot.x(), foot.y() - height}, roof, 3);
    canvas.Ellipse({foot.x(), foot.y() - height * 0.97}, 5, 5,
                   mood.Far(QColor(0xe2b84e), distance));
}

void PaintLighthouse(Canvas& canvas, QPointF foot, double height, bool burning)
{
    const Mood& mood = canvas.mood;
    const double low = height * 0.1;
    const double high = height * 0.062;
    const double gallery = height * 0.8;
    const auto half = [&](double up) { return low + (high - low) * up; };
    for (int band = 0; band < 5; ++band) {
        const double from = band / 5.0;
        const double to = (band + 1) / 5.0;
        QPolygonF ring;
        ring << foot + QPointF(-half(from), -gallery * from)
             << foot + QPointF(-half(to), -gallery * to) << foot + QPointF(half(to), -gallery * to)
             << foot + QPointF(half(from), -gallery * from);
        const QColor paint = mood.Lit(band % 2 == 0 ? QColor(0xf5efe4) : QColor(0xc94f45));
        canvas.Fill(
            ring, Across(foot.x() - low, foot.x() + low, Lighter(paint, 0.1), Darker(paint, 0.3)));
    }
    const QColor iron = mood.Lit(QColor(0x3d4554));
    const QPointF lamp = foot + QPointF(0, -gallery - height * 0.055);
    canvas.painter.fillRect(QRectF(foot.x() - high * 1.4, foot.y() - gallery - 5, high * 2.8, 9),
                            iron);
    canvas.painter.fillRect(QRectF(foot.x() - high * 0.72, foot.y() - gallery - height * 0.1,
                                   high * 1.44, height * 0.098),
                            burning ? QColor(0xfff0b8) : mood.Lit(QColor(0xbfd8e0)));
    for (const double bar : {-0.7, 0.0, 0.7}) {
        canvas.Line({foot.x() + bar * high, foot.y() - gallery},
                    {foot.x() + bar * high, foot.y() - gallery - height * 0.1}, iron, 2.5);
    }
    QPainterPath dome(QPointF(foot.x() - high, foot.y() - gallery - height * 0.1));
    dome.quadTo(foot.x(), foot.y() - gallery - height * 0.2, foot.x() + high,
                foot.y() - gallery - height * 0.1);
    canvas.Fill(dome, mood.Lit(QColor(0xb5443c)));
    if (burning) {
        for (const double side : {-1.0, 1.0}) {
            QPolygonF beam;
            beam << lamp << lamp + QPointF(side * 1500, -30) << lamp + QPointF(side * 1500, 150);
            QLinearGradient light(lamp, lamp + QPointF(side * 720, 30));
            light.setColorAt(0, QColor(255, 240, 190, 120));
            light.setColorAt(1, QColor(255, 240, 190, 0));
            canvas.Fill(beam, light);
        }
        canvas.Glow(lamp, height * 0.5, QColor(0xffeeb4), 0.8);
    }
    for (const double up : {0.3, 0.62}) {
        QPainterPath window;
        window.addRoundedRect(QRectF(foot.x() - high * 0.18, foot.y() - gallery * up - high * 0.3,
                                     high * 0.36, high * 0.62),
                              high * 0.18, high * 0.18);
        canvas.Fill(window, burning ? QColor(0xffcf80) : iron);
    }
}

void PaintWindmill(Canvas& canvas, QPointF foot, double height)
{
    const Mood& mood = canvas.mood;
    const QColor wall = mood.Lit(QColor(0xe9dcc3));
    QPolygonF body;
    body << foot + QPointF(-0.19, 0) * height << foot + QPointF(-0.11, -0.62) * height
         << foot + QPointF(0.11, -0.62) * height << foot + QPointF(0.19, 0) * height;
    canvas.Fill(body, Across(foot.x() - height * 0.17, foot.x() + height * 0.17,
                             Lighter(wall, 0.15), Darker(wall, 0.32)));
    QPainterPath cap(foot + QPointF(-0.13, -0.61) * height);
    cap.quadTo(foot + QPointF(0, -0.86) * height, foot + QPointF(0.13, -0.61) * height);
    canvas.Fill(cap, mood.Lit(QColor(0x7d4b40)));
    const QPointF hub = foot + QPointF(-0.01, -0.67) * height;
    const QColor wood = mood.Lit(QColor(0x5b4437));
    for (int arm = 0; arm < 4; ++arm) {
        const double turn = arm * std::numbers::pi / 2 + 0.5;
        const QPointF out(std::cos(turn), std::sin(turn));
        const QPointF aside(-out.y(), out.x());
        canvas.Line(hub, hub + out * height * 0.46, wood, height * 0.014);
        QPolygonF sail;
        sail << hub + out * height * 0.1 << hub + out * height * 0.46
             << hub + out * height * 0.46 + aside * height * 0.075
             << hub + out * height * 0.1 + aside * height * 0.075;
        canvas.Fill(sail, Faded(mood.Lit(QColor(0xf7efdd)), 0.85));
        for (int rung = 1; rung < 9; ++rung) {
            const QPointF at = hub + out * height * (0.1 + 0.04 * rung);
            canvas.Line(at, at + aside * height * 0.075, Faded(wood, 0.6), 1.5);
        }
    }
    canvas.Ellipse(hub, height * 0.022, height * 0.022, wood);
    QPainterPath door;
    door.addRoundedRect(
        QRectF(foot.x() - height * 0.04, foot.y() - height * 0.14, height * 0.08, height * 0.15),
        height * 0.04, height * 0.04);
    canvas.Fill(door, wood);
    canvas.painter.fillRect(
        QRectF(foot.x() - height * 0.02, foot.y() - height * 0.4, height * 0.04, height * 0.06),
        mood.Lamps() ? QColor(0xffcb78) : wood);
}

void PaintBridge(Canvas& canvas, double left, double right, double deck, double water, int arches)
{
    const Mood& mood = canvas.mood;
    const QColor stone = mood.Lit(QColor(0xc9b597));
    const double span = (right - left) / arches;
    const double rise = (water - deck) * 0.25;
    const auto top = [&](double x) {
        const double along = (x - left) / (right - left) * 2 - 1;
        return deck - rise * (1 - along * along);
    };
    QPainterPath body(QPointF(left, water));
    for (double x = left; x <= right; x += 10) {
        body.lineTo(x, top(x));
    }
    body.lineTo(right, water);
    QPainterPath holes;
    for (int i = 0; i < arches; ++i) {
        const double x = left + span * i;
        const double crown = top(x + span / 2) + (water - deck) * 0.28;
        QPainterPath hole;
        hole.addEllipse(QPointF(x + span / 2, water + 2), span * 0.39, water - crown);
        holes.addPath(hole);
    }
    canvas.Fill(holes,
                Fade(deck, water, Faded(Darker(stone, 0.6), 0.5), Faded(Darker(stone, 0.6), 0.15)));
    canvas.painter.save();
    canvas.painter.setClipRect(QRectF(left, 0, right - left, water));
    canvas.Fill(body.subtracted(holes),
                Fade(deck - rise, water, Lighter(stone, 0.12), Darker(stone, 0.3)));
    canvas.Stroke(holes, Faded(Darker(stone, 0.4), 0.7), 7);
    Random& random = canvas.random;
    for (int i = 0; i < 150; ++i) {
        const QPointF at(random.Between(left, right), random.Between(deck - rise, water));
        if (body.contains(at) && !holes.contains(at)) {
            canvas.Line(at, at + QPointF(random.Between(8, 22), 0), Faded(Darker(stone, 0.5), 0.25),
                        2);
        }
    }
    QPainterPath rail(QPointF(left, top(left)));
    for (double x = left; x <= right; x += 10) {
        rail.lineTo(x, top(x));
    }
    canvas.painter.restore();
    canvas.Stroke(rail, mood.Winter() ? mood.Lit(QColor(0xffffff)) : Lighter(stone, 0.25), 11);
}

void PaintStreetLamp(Canvas& canvas, QPointF foot, double height)
{
    const Mood& mood = canvas.mood;
    const QColor iron = mood.Lit(QColor(0x2f3a44));
    canvas.Line(foot, foot + QPointF(0, -height * 0.86), iron, height * 0.028);
    canvas.Line(foot, foot + QPointF(0, -height * 0.14), iron, height * 0.055);
    const QPointF lamp = foot + QPointF(0, -height * 0.92);
    QPolygonF glass;
    glass << lamp + QPointF(-0.035, 0.06) * height << lamp + QPointF(-0.055, -0.05) * height
          << lamp + QPointF(0.055, -0.05) * height << lamp + QPointF(0.035, 0.06) * height;
    canvas.Fill(glass, mood.Lamps() ? QColor(0xffe2a0) : mood.Lit(QColor(0xe8efe8)));
    QPolygonF hat;
    hat << lamp + QPointF(-0.07, -0.045) * height << lamp + QPointF(0, -0.11) * height
        << lamp + QPointF(0.07, -0.045) * height;
    canvas.Fill(hat, mood.Winter() ? mood.Lit(QColor(0xf4f8fc)) : iron);
    if (mood.Lamps()) {
        canvas.Glow(lamp, height * 0.9, QColor(0xffc873), 0.55);
        canvas.painter.save();
        canvas.painter.translate(foot);
        canvas.painter.scale(1, 0.22);
        canvas.Glow({0, 0}, height * 0.8, QColor(0xffc873), 0.38);
        canvas.painter.restore();
    }
}

void PaintStall(Canvas& canvas, QPointF foot, double width, const QColor& cloth)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const double height = width * 0.82;
    const QColor wood = mood.Lit(QColor(0x7d5a3e));
    const QRectF inside(foot.x() - width * 0.46, foot.y() - height * 0.75, width * 0.92,
                        height * 0.5);
    canvas.painter.fillRect(inside, mood.Lamps() ? QColor(0xd98f4a) : mood.Lit(QColor(0x6d5a50)));
    const QRectF counter(foot.x() - width * 0.5, foot.y() - height * 0.38, width, height * 0.38);
    canvas.painter.fillRect(
        counter, Fade(counter.top(), counter.bottom(), Lighter(wood, 0.15), Darker(wood, 0.2)));
    const std::array<QColor, 5> goods = {QColor(0xd9503f), QColor(0xe9b03f), QColor(0x7fa648),
                                         QColor(0xc97a3a), QColor(0x8a5a90)};
    for (int heap = 0; heap < 5; ++heap) {
        const double x = counter.left() + width * (heap + 0.5) / 5;
        for (int i = 0; i < 9; ++i) {
            const QPointF at(x + random.Between(-0.075, 0.075) * width,
                             counter.top() - random.Between(-0.01, 0.05) * width);
            canvas.Ellipse(
                at, width * 0.026, width * 0.024,
                mood.Lit(Lighter(goods[static_cast<size_t>(heap)], random.Between(0, 0.25))));
        }
    }
    for (const double side : {-0.48, 0.48}) {
        canvas.Line(foot + QPointF(width * side, 0), foot + QPointF(width * side, -height), wood,
                    width * 0.028);
    }
    const int stripes = 8;
    for (int i = 0; i < stripes; ++i) {
        const double at = foot.x() - width * 0.5 + width * i / stripes;
        const double low = foot.x() - width * 0.58 + width * 1.16 * i / stripes;
        const double step = width * 1.16 / stripes;
        const QColor color = mood.Lit(i % 2 == 0 ? cloth : QColor(0xf8f2e4));
        QPainterPath stripe(QPointF(at, foot.y() - height * 1.08));
        stripe.lineTo(at + width / stripes, foot.y() - height * 1.08);
        stripe.lineTo(low + step, foot.y() - height * 0.8);
        stripe.quadTo(low + step / 2, foot.y() - height * 0.7, low, foot.y() - height * 0.8);
        canvas.Fill(stripe, Fade(foot.y() - height * 1.1, foot.y() - height * 0.7, color,
                                 Darker(color, 0.12)));
    }
    if (mood.Winter()) {
        canvas.Line(foot + QPointF(-width * 0.49, -height * 1.08),
                    foot + QPointF(width * 0.49, -height * 1.08), mood.Lit(QColor(0xffffff)),
                    width * 0.05);
    }
    if (mood.Lamps()) {
        canvas.Glow(inside.center(), width * 0.75, QColor(0xffbf68), 0.55);
    }
}

void PaintCobbles(Canvas& canvas, double top)
{
    Random& random = canvas.random;
    const Mood& mood = canvas.mood;
    const QColor stone = mood.Lit(mood.Winter() ? QColor(0xdbe4ee) : QColor(0xb3a696));
    canvas.painter.fillRect(QRectF(0, top, canvas.width, canvas.height - top),
                            Fade(top, canvas.height, Lighter(stone, 0.12), Darker(stone, 0.18)));
    double y = top + 5;
    for (int row = 0; y < canvas.height; ++row) {
        const double size = 9 + (y - top) * 0.07;
        for (double x = (row % 2 == 0 ? 0 : -size); x < canvas.width + size; x += size * 2.1) {
            const QColor tone = random.Chance(0.5) ? Lighter(stone, 0.35) : Darker(stone, 0.3);
            canvas.Ellipse({x + random.Between(-2, 2), y}, size * 0.9, size * 0.34,
                           Faded(tone, random.Between(0.08, 0.24)));
        }
        y += size * 0.8;
    }
}
