// SPDX-License-Identifier: MIT
#include "Mood.h"

#include <algorithm>

namespace {

void Season(Mood& mood)
{
    if (mood.Spring()) {
        mood.ground = QColor(0x9cc46c);
        mood.groundDark = QColor(0x5d9455);
        mood.hill = QColor(0x6fa878);
        mood.leaves = {QColor(0x93c162), QColor(0x74ad58), QColor(0xf3b7c6), QColor(0xfbe1e4)};
    } else if (mood.Summer()) {
        mood.ground = QColor(0x86b04c);
        mood.groundDark = QColor(0x46823f);
        mood.hill = QColor(0x4f8f6a);
        mood.leaves = {QColor(0x5a9a48), QColor(0x437f42), QColor(0x7fb04e), QColor(0x3a7347)};
    } else if (mood.Autumn()) {
        mood.ground = QColor(0xc7a352);
        mood.groundDark = QColor(0x8a6a38);
        mood.hill = QColor(0x9a7b55);
        mood.leaves = {QColor(0xe0892f), QColor(0xc9582f), QColor(0xe9b53c), QColor(0xa8452f)};
    } else {
        mood.ground = QColor(0xf1f5fa);
        mood.groundDark = QColor(0xb9cbe0);
        mood.hill = QColor(0x8fa9c2);
        mood.leaves = {QColor(0x4c7070), QColor(0x3f6168), QColor(0x5c7d78), QColor(0x36545e)};
    }
}

void DaySky(Mood& mood)
{
    mood.sun = QColor(0xfff4d0);
    mood.tint = QColor(0xfff2d8);
    mood.tintAmount = 0.05;
    mood.skyTop = QColor(mood.Summer() ? 0x4a9bcd : 0x74b2d6);
    mood.skyMiddle = QColor(mood.Summer() ? 0x9fd0e4 : 0xb7d9e4);
    mood.skyLow = QColor(0xf8efd9);
    mood.haze = QColor(0xd6e5e2);
    mood.water = QColor(0x4a94ae);
    if (mood.Autumn()) {
        mood.skyTop = QColor(0x7ba8c4);
        mood.skyMiddle = QColor(0xc3d4d4);
        mood.skyLow = QColor(0xfbe6c3);
        mood.haze = QColor(0xead9c0);
        mood.water = QColor(0x4c7f92);
    } else if (mood.Winter()) {
        mood.skyTop = QColor(0x86b0d4);
        mood.skyMiddle = QColor(0xc2d8e8);
        mood.skyLow = QColor(0xf8ece4);
        mood.haze = QColor(0xdfe8f1);
        mood.water = QColor(0x5d8aa6);
    }
}

void LowSun(Mood& mood)
{
    const bool dusk = mood.Dusk();
    mood.sun = QColor(dusk ? 0xffc27a : 0xfff0c4);
    mood.tint = QColor(dusk ? 0x4a3a60 : 0xf2a78f);
    mood.tintAmount = dusk ? 0.46 : 0.22;
    mood.skyTop = QColor(dusk ? 0x3a4473 : 0x6f8fbb);
    mood.skyMiddle = QColor(dusk ? 0xb86c80 : 0xe9b4a6);
    mood.skyLow = QColor(dusk ? 0xffb870 : 0xffe3ae);
    mood.haze = QColor(dusk ? 0xd98a80 : 0xf3cdb4);
    mood.water = QColor(dusk ? 0x4a3f70 : 0x8a8fae);
    if (dusk && mood.Winter()) {
        mood.skyMiddle = QColor(0x9a6c9c);
        mood.skyLow = QColor(0xf9b9a0);
        mood.haze = QColor(0xb08bac);
        mood.tint = QColor(0x3c3c72);
    }
}

void Darkness(Mood& mood)
{
    mood.sun = QColor(0xf6f1d8);
    mood.tint = QColor(0x142046);
    mood.tintAmount = mood.Winter() ? 0.62 : 0.7;
    mood.skyTop = QColor(0x0b1230);
    mood.skyMiddle = QColor(0x1c2c5c);
    mood.skyLow = QColor(0x4a5c8c);
    mood.haze = QColor(0x34457a);
    mood.water = QColor(0x16234a);
}

void Weather(Mood& mood)
{
    const bool storm = mood.Storm();
    mood.sun = QColor(0xfdf6e4);
    mood.tint = QColor(storm ? 0x3c4858 : 0xdadcd6);
    mood.tintAmount = storm ? 0.36 : 0.3;
    mood.skyTop = QColor(storm ? 0x3d4757 : 0xb9c6cc);
    mood.skyMiddle = QColor(storm ? 0x667482 : 0xd3d9d8);
    mood.skyLow = QColor(storm ? 0xd6cfae : 0xeeebdf);
    mood.haze = QColor(storm ? 0x9aa39f : 0xdfe2dd);
    mood.water = QColor(storm ? 0x3d5866 : 0xa9bac0);
}

} // namespace

QColor Mood::Lit(const QColor& color) const
{
    return Mix(color, tint, tintAmount);
}

QColor Mood::Far(const QColor& color, double distance) const
{
    return Mix(Lit(color), haze, distance);
}

Mood MoodOf(const QString& season, const QString& light)
{
    Mood mood;
    mood.season = season;
    mood.light = light;
    Season(mood);
    if (mood.Dawn() || mood.Dusk()) {
        LowSun(mood);
    } else if (mood.Night()) {
        Darkness(mood);
    } else if (mood.Fog() || mood.Storm()) {
        Weather(mood);
    } else {
        DaySky(mood);
    }
    return mood;
}

QColor Mix(const QColor& first, const QColor& second, double share)
{
    const auto part = static_cast<float>(std::clamp(share, 0.0, 1.0));
    const float rest = 1 - part;
    return QColor::fromRgbF(first.redF() * rest + second.redF() * part,
                            first.greenF() * rest + second.greenF() * part,
                            first.blueF() * rest + second.blueF() * part,
                            first.alphaF() * rest + second.alphaF() * part);
}

QColor Faded(const QColor& color, double opacity)
{
    QColor result = color;
    result.setAlphaF(static_cast<float>(std::clamp(opacity, 0.0, 1.0)));
    return result;
}

QColor Lighter(const QColor& color, double share)
{
    return Mix(color, QColor(0xfffaf0), share);
}

QColor Darker(const QColor& color, double share)
{
    return Mix(color, QColor(0x1c2238), share);
}
