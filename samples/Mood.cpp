// SPDX-License-Identifier: MIT
#include "Mood.h"

#include "Data.h"

#include <algorithm>
#include <utility>

namespace {

// Takes over what an element of moods.xml says and leaves the rest.
void Take(Mood& mood, const QXmlStreamAttributes& attributes)
{
    const std::pair<const char*, QColor*> colors[]{
        {"sky-top", &mood.skyTop},  {"sky-middle", &mood.skyMiddle},
        {"sky-low", &mood.skyLow},  {"haze", &mood.haze},
        {"tint", &mood.tint},       {"sun", &mood.sun},
        {"ground", &mood.ground},   {"ground-dark", &mood.groundDark},
        {"hill", &mood.hill},       {"water", &mood.water},
        {"leaf0", &mood.leaves[0]}, {"leaf1", &mood.leaves[1]},
        {"leaf2", &mood.leaves[2]}, {"leaf3", &mood.leaves[3]},
    };
    for (const auto& [name, color] : colors) {
        if (attributes.hasAttribute(QLatin1String(name)))
            *color = QColor(attributes.value(QLatin1String(name)).toString());
    }
    if (attributes.hasAttribute(QLatin1String("tint-amount")))
        mood.tintAmount = attributes.value(QLatin1String("tint-amount")).toDouble();
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
    const QStringList words{season.toLower(), light.toLower()};
    ReadElements(QStringLiteral("moods.xml"), [&](const QXmlStreamReader& reader) {
        const QStringList when =
            reader.attributes().value(QLatin1String("when")).toString().split(u' ');
        if (std::all_of(when.begin(), when.end(),
                        [&](const QString& word) { return words.contains(word); }))
            Take(mood, reader.attributes());
    });
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
