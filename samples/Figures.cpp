// SPDX-License-Identifier: MIT
#include "Figures.h"

#include <cmath>

namespace {

struct Looks
{
    QColor coat;
    QColor legs;
    QColor hair;
    QColor hat;
    bool skirt = false;
    double size = 1;
};

Looks LooksOf(const QString& name)
{
    if (name == QLatin1String("Clara")) {
        return {QColor(0xc9483f), QColor(0x4a3f50), QColor(0x5b3a2a), QColor(), true, 0.96};
    }
    if (name == QLatin1String("Jonas")) {
        return {QColor(0x3f6a94), QColor(0x3a3f4c), QColor(0x8a5a32), QColor(), false, 1.02};
    }
    if (name == QLatin1String("Mira")) {
        return {QColor(0xe9b23c), QColor(0x5a4a6a), QColor(0x3a2a26), QColor(0xd9624f), true, 0.7};
    }
    return {QColor(0x55754e), QColor(0x4d4238), QColor(0xd9d3c8), QColor(0x5d4a3c), false, 1.0};
}

// The joints of a body one unit tall that looks to the right, feet at the origin, y upward.
struct Pose
{
    QPointF head{0.01, 0.9};
    QPointF neck{0, 0.79};
    QPointF hip{0, 0.47};
    QPointF kneeBack{-0.035, 0.24};
    QPointF footBack{-0.045, 0};
    QPointF kneeFront{0.04, 0.24};
    QPointF footFront{0.045, 0};
    QPointF elbowBack{-0.12, 0.63};
    QPointF handBack{-0.1, 0.48};
    QPointF elbowFront{0.11, 0.63};
    QPointF handFront{0.12, 0.48};
};

Pose Seated()
{
    Pose pose;
    pose.head = {0.0, 0.56};
    pose.neck = {-0.02, 0.45};
    pose.hip = {-0.05, 0.1};
    pose.kneeFront = {0.2, 0.22};
    pose.footFront = {0.3, 0.01};
    pose.kneeBack = {0.15, 0.2};
    pose.footBack = {0.22, 0.01};
    pose.elbowFront = {0.08, 0.29};
    pose.handFront = {0.19, 0.31};
    pose.elbowBack = {0.03, 0.28};
    pose.handBack = {0.15, 0.29};
    return pose;
}

Pose Skater()
{
    Pose pose;
    pose.head = {0.15, 0.83};
    pose.neck = {0.1, 0.74};
    pose.hip = {-0.02, 0.45};
    pose.kneeFront = {0.08, 0.24};
    pose.footFront = {0.03, 0.02};
    pose.kneeBack = {-0.14, 0.3};
    pose.footBack = {-0.34, 0.2};
    pose.elbowFront = {0.22, 0.62};
    pose.handFront = {0.33, 0.7};
    pose.elbowBack = {-0.05, 0.66};
    pose.handBack = {-0.18, 0.6};
    return pose;
}

Pose PoseOf(const QString& activity)
{
    Pose pose;
    if (activity == QLatin1String("Reading") || activity == QLatin1String("Picnic") ||
        activity == QLatin1String("Resting")) {
        return Seated();
    }
    if (activity == QLatin1String("Fishing")) {
        Pose seated = Seated();
        seated.handFront = {0.24, 0.34};
        return seated;
    }
    if (activity == QLatin1String("Skating")) {
        return Skater();
    }
    if (activity == QLatin1String("Walking") || activity == QLatin1String("Shopping")) {
        pose.kneeFront = {0.09, 0.25};
        pose.footFront = {0.14, 0};
        pose.kneeBack = {-0.03, 0.23};
        pose.footBack = {-0.13, 0.02};
    }
    if (activity == QLatin1String("Flying a kite") || activity == QLatin1String("Picking apples")) {
        pose.elbowFront = {0.13, 0.82};
        pose.handFront = {0.2, 1.0};
        pose.head = {0.0, 0.9};
    }
    if (activity == QLatin1String("Playing")) {
        pose.elbowFront = {0.15, 0.8};
        pose.handFront = {0.22, 0.95};
        pose.elbowBack = {-0.15, 0.8};
        pose.handBack = {-0.22, 0.94};
    }
    if (activity == QLatin1String("Rowing")) {
        pose = Seated();
        pose.handBack = {0.24, 0.3};
    }
    return pose;
}

class Body
{
public:
    Body(Canvas& canvas, QPointF foot, double unit, bool leftward)
        : canvas_(canvas), foot_(foot), unit_(unit), side_(leftward ? -1 : 1)
    {
    }

    QPointF At(QPointF joint) const
    {
        return foot_ + QPointF(joint.x() * unit_ * side_, -joint.y() * unit_);
    }
    void Limb(QPointF a, QPointF b, QPointF c, const QColor& color, double thickness)
    {
        QPainterPath limb(At(a));
        limb.lineTo(At(b));
        limb.lineTo(At(c));
        canvas_.Stroke(limb, color, thickness * unit_);
    }
    double Unit() const { return unit_; }

private:
    Canvas& canvas_;
    QPointF foot_;
    double unit_;
    double side_;
};

void Coat(Canvas& canvas, const Body& body, const Pose& pose, const Looks& looks)
{
    const double flare = looks.skirt ? 0.15 : 0.1;
    const double fall = looks.skirt && pose.hip.y() > 0.3 ? 0.14 : 0.04;
    const QPointF hem = pose.hip - QPointF(0, fall);
    QPainterPath coat(body.At(pose.neck + QPointF(-0.035, 0.01)));
    coat.lineTo(body.At(pose.neck + QPointF(0.035, 0.01)));
    coat.quadTo(body.At(pose.neck + QPointF(0.115, -0.01)),
                body.At((pose.neck + hem) / 2 + QPointF(0.09, 0)));
    coat.lineTo(body.At(hem + QPointF(flare, 0)));
    coat.lineTo(body.At(hem + QPointF(-flare, 0)));
    coat.lineTo(body.At((pose.neck + hem) / 2 + QPointF(-0.09, 0)));
    coat.quadTo(body.At(pose.neck + QPointF(-0.115, -0.01)),
                body.At(pose.neck + QPointF(-0.035, 0.01)));
    const QColor color = canvas.mood.Lit(looks.coat);
    canvas.Fill(coat, Fade(body.At(pose.neck).y(), body.At(hem).y(), Lighter(color, 0.1),
                           Darker(color, 0.12)));
}

void Head(Canvas& canvas, const Body& body, const Pose& pose, const Looks& looks)
{
    const Mood& mood = canvas.mood;
    const double unit = body.Unit();
    const double radius = (looks.size < 0.8 ? 0.1 : 0.074) * unit;
    const QPointF head = body.At(pose.head);
    const QColor skin = mood.Lit(QColor(0xeec2a2));
    canvas.Line(body.At(pose.neck), head, skin, 0.05 * unit);
    if (looks.skirt) {
        const double back = body.At({0, 0}).x() < body.At({1, 0}).x() ? -radius : radius;
        canvas.Ellipse(head + QPointF(back * 0.42, radius * 0.2), radius * 0.95, radius * 1.15,
                       mood.Lit(looks.hair));
    }
    canvas.Ellipse(head, radius, radius * 1.06, skin);
    QPainterPath hair(head + QPointF(-radius * 1.08, radius * 0.2));
    hair.cubicTo(head + QPointF(-radius * 1.2, -radius * 1.5),
                 head + QPointF(radius * 1.2, -radius * 1.5),
                 head + QPointF(radius * 1.08, -radius * 0.05));
    hair.quadTo(head + QPointF(0, -radius * 0.7), head + QPointF(-radius * 1.08, radius * 0.2));
    const bool cap = looks.hat.isValid() && (mood.Winter() || mood.Autumn() || looks.size >= 1);
    canvas.Fill(hair, mood.Lit(cap ? looks.hat : looks.hair));
    if (cap && looks.size >= 1) {
        canvas.Line(head + QPointF(-radius * 1.5, -radius * 0.35),
                    head + QPointF(radius * 1.5, -radius * 0.35), mood.Lit(looks.hat),
                    radius * 0.35);
    } else if (mood.Winter()) {
        canvas.Line(body.At(pose.neck + QPointF(-0.06, 0.02)),
                    body.At(pose.neck + QPointF(0.06, 0.02)), mood.Lit(QColor(0xf0d9c0)),
                    0.06 * unit);
    }
}

void Tool(Canvas& canvas, const Body& body, const Pose& pose, const QString& activity)
{
    const Mood& mood = canvas.mood;
    const double unit = body.Unit();
    const QPointF hand = body.At(pose.handFront);
    if (activity == QLatin1String("Reading")) {
        QPolygonF book;
        book << body.At(pose.handFront + QPointF(-0.04, -0.02))
             << body.At(pose.handFront + QPointF(-0.07, 0.12))
             << body.At(pose.handFront + QPointF(0.02, 0.1))
             << body.At(pose.handFront + QPointF(0.12, 0.13))
             << body.At(pose.handFront + QPointF(0.12, 0.0))
             << body.At(pose.handFront + QPointF(0.03, -0.03));
        canvas.Fill(book, mood.Lit(QColor(0xf8f1e0)));
    } else if (activity == QLatin1String("Fishing")) {
        const QPointF tip = body.At(pose.handFront + QPointF(0.72, 0.5));
        canvas.Line(hand, tip, mood.Lit(QColor(0x4d3a2c)), 0.016 * unit);
        canvas.Line(tip, body.At({pose.handFront.x() + 0.74, -0.32}),
                    Faded(mood.Lit(QColor(0xf0ece0)), 0.7), 1.2);
    } else if (activity == QLatin1String("Shopping")) {
        const QPointF basket = hand + QPointF(0, 0.09 * unit);
        QPainterPath handle(basket + QPointF(-0.06 * unit, 0));
        handle.quadTo(hand + QPointF(0, -0.05 * unit), basket + QPointF(0.06 * unit, 0));
        canvas.Stroke(handle, mood.Lit(QColor(0x8a6238)), 0.014 * unit);
        canvas.painter.fillRect(
            QRectF(basket.x() - 0.075 * unit, basket.y(), 0.15 * unit, 0.085 * unit),
            mood.Lit(QColor(0xa9783f)));
        canvas.Ellipse(basket + QPointF(-0.03, -0.005) * unit, 0.028 * unit, 0.028 * unit,
                       mood.Lit(QColor(0xd9503f)));
        canvas.Ellipse(basket + QPointF(0.03, -0.005) * unit, 0.028 * unit, 0.028 * unit,
                       mood.Lit(QColor(0x8fb04a)));
    }
}

} // namespace

void PaintPerson(Canvas& canvas, const Person& person, QPointF foot, double height, bool leftward)
{
    const Mood& mood = canvas.mood;
    const Looks looks = LooksOf(person.name);
    const Pose pose = PoseOf(person.activity);
    Body body(canvas, foot, height * looks.size, leftward);
    canvas.Ellipse(foot + QPointF(height * 0.05, 0), height * 0.2, height * 0.028,
                   Faded(Darker(mood.groundDark, 0.6), 0.28));
    const QColor legs = mood.Lit(looks.legs);
    const QColor sleeve = mood.Lit(Darker(looks.coat, 0.14));
    body.Limb(pose.neck + QPointF(-0.06, -0.04), pose.elbowBack, pose.handBack, sleeve, 0.065);
    body.Limb(pose.hip + QPointF(-0.03, 0), pose.kneeBack, pose.footBack, Darker(legs, 0.15),
              0.085);
    body.Limb(pose.hip + QPointF(0.03, 0), pose.kneeFront, pose.footFront, legs, 0.085);
    for (const QPointF& shoe : {pose.footBack, pose.footFront}) {
        canvas.Line(body.At(shoe), body.At(shoe + QPointF(0.06, 0.0)), mood.Lit(QColor(0x3a2c28)),
                    0.05 * body.Unit());
    }
    Coat(canvas, body, pose, looks);
    Head(canvas, body, pose, looks);
    Tool(canvas, body, pose, person.activity);
    body.Limb(pose.neck + QPointF(0.06, -0.04), pose.elbowFront, pose.handFront,
              mood.Lit(Darker(looks.coat, 0.06)), 0.065);
    canvas.Ellipse(body.At(pose.handFront), 0.034 * body.Unit(), 0.034 * body.Unit(),
                   mood.Lit(QColor(0xeec2a2)));
}

void PaintPeople(Canvas& canvas, QPointF middle, double height)
{
    const double step = height * 0.6;
    double x = middle.x() - step * (static_cast<double>(canvas.people.size()) - 1) / 2;
    bool leftward = false;
    for (const Person& person : canvas.people) {
        PaintPerson(canvas, person, {x, middle.y()}, height, leftward);
        x += step;
        leftward = person.activity != QLatin1String("Walking");
    }
}
