// SPDX-License-Identifier: MIT
#pragma once

#include "Hills.h"

#include <QHash>
#include <QXmlStreamReader>

// One element of a scene, with its attributes as numbers of the canvas. SceneReader.h tells what
// they mean; one that is missing is 0 or empty.
class Step
{
public:
    Step(Canvas& sheet, QHash<QString, Ridge>& allRidges, const QXmlStreamReader& reader)
        : canvas(sheet),
          name(reader.name().toString()),
          ridges(allRidges),
          attributes_(reader.attributes())
    {
    }

    bool Has(const char* attribute) const
    {
        return attributes_.hasAttribute(QLatin1String(attribute));
    }
    QString Text(const char* attribute) const
    {
        return attributes_.value(QLatin1String(attribute)).toString();
    }
    double Number(const char* attribute, double otherwise = 0) const
    {
        return Has(attribute) ? Measure(Text(attribute), canvas.height) : otherwise;
    }
    int Count(const char* attribute) const { return static_cast<int>(Number(attribute)); }
    double X(const char* attribute = "x") const
    {
        return Measure(Text(attribute), canvas.width) + shift;
    }
    double Y(const char* attribute = "y") const { return Measure(Text(attribute), canvas.height); }
    QPointF Place() const { return {X(), Y()}; }
    double Far() const { return Number("far"); }
    QColor Color(const char* attribute) const;
    // The ridge that was added before under the name in the attribute "on"; throws when none was.
    const Ridge& On() const { return RidgeOf(Text("on")); }
    // Adds the one that the element describes, under its id.
    Ridge& AddRidge() const;
    // Draws the thing that the element is named after.
    void Draw() const;

    Canvas& canvas;
    QString name;
    QHash<QString, Ridge>& ridges;
    double shift = 0; // of a repetition, to the right
    int repetition = 0;

private:
    double Measure(const QString& text, double whole) const;
    double Term(const QString& term, double whole) const;
    const Ridge& RidgeOf(const QString& id) const;

    QXmlStreamAttributes attributes_;
};
