// SPDX-License-Identifier: MIT
#include "Figures.h"

#include "Drawing.h"

namespace {

struct Looks
{
    QColor coat;
    QColor legs;
    QColor hair;
    QColor hat;
    QStringList words;
    double size = 1; // of a grown-up
};

Looks LooksOf(const QString& name)
{
    static const QHash<QString, Looks> looks{
        {"Clara", {0xc9483f, 0x4a3f50, 0x5b3a2a, {}, {"skirt"}, 0.96}},
        {"Jonas", {0x3f6a94, 0x3a3f4c, 0x8a5a32, {}, {}, 1.02}},
        {"Mira", {0xe9b23c, 0x5a4a6a, 0x3a2a26, 0xd9624f, {"skirt", "child"}, 0.7}},
    };
    return looks.value(name, {0x55754e, 0x4d4238, 0xd9d3c8, 0x5d4a3c, {"cap", "brim"}, 1});
}

struct Pose
{
    QString drawing;
    QStringList words;
};

Pose PoseOf(const QString& activity)
{
    static const QHash<QString, Pose> poses{
        {"Walking", {"person-upright", {"walking"}}},
        {"Shopping", {"person-upright", {"walking", "shopping"}}},
        {"Flying a kite", {"person-upright", {"reaching"}}},
        {"Picking apples", {"person-upright", {"reaching"}}},
        {"Playing", {"person-upright", {"playing"}}},
        {"Reading", {"person-seated", {"reading"}}},
        {"Fishing", {"person-seated", {"fishing"}}},
        {"Rowing", {"person-seated", {"rowing"}}},
        {"Picnic", {"person-seated", {}}},
        {"Resting", {"person-seated", {}}},
        {"Skating", {"person-skating", {}}},
    };
    return poses.value(activity, {"person-upright", {}});
}

} // namespace

void PaintPerson(Canvas& canvas, const Person& person, QPointF foot, double height, bool leftward)
{
    const Mood& mood = canvas.mood;
    const Looks looks = LooksOf(person.name);
    const Pose pose = PoseOf(person.activity);
    QStringList words = looks.words + pose.words;
    const bool isCold = mood.Winter() || mood.Autumn();
    if (looks.hat.isValid() && isCold)
        words += "cap";
    if (mood.Winter() && !words.contains("brim"))
        words += "scarf";
    const double unit = height * looks.size / 1000;
    PaintDrawing(canvas,
                 {pose.drawing,
                  {{"coat", looks.coat},
                   {"legs", looks.legs},
                   {"hair", looks.hair},
                   {"hat", looks.hat.isValid() ? looks.hat : looks.hair}},
                  words},
                 foot, {leftward ? -unit : unit, unit});
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
