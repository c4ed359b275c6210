// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include <array>

// The colours of one season at one hour.
struct Mood
{
    // What a thing of this colour looks like in this light.
    QColor Lit(const QColor& color) const;
    // The same, seen through the air: distance 0 is here, 1 is where everything is haze.
    QColor Far(const QColor& color, double distance) const;

    bool Winter() const { return season == QLatin1String("Winter"); }
    bool Spring() const { return season == QLatin1String("Spring"); }
    bool Summer() const { return season == QLatin1String("Summer"); }
    bool Autumn() const { return season == QLatin1String("Autumn"); }
    bool Night() const { return light == QLatin1String("Night"); }
    bool Dusk() const { return light == QLatin1String("Dusk"); }
    bool Dawn() const { return light == QLatin1String("Dawn"); }
    bool Fog() const { return light == QLatin1String("Fog"); }
    bool Storm() const { return light == QLatin1String("Storm"); }
    // Lamps burn and windows are bright.
    bool Lamps() const { return Night() || Dusk(); }

    QString season;
    QString light;
    QColor skyTop;
    QColor skyMiddle;
    QColor skyLow;
    QColor haze;
    QColor tint;
    double tintAmount = 0;
    QColor sun;
    // As they are at noon; pass them through Lit() or Far().
    QColor ground;
    QColor groundDark;
    QColor hill;
    QColor water;
    std::array<QColor, 4> leaves;
};

Mood MoodOf(const QString& season, const QString& light);

QColor Mix(const QColor& first, const QColor& second, double share);
QColor Faded(const QColor& color, double opacity);
QColor Lighter(const QColor& color, double share);
QColor Darker(const QColor& color, double share);
