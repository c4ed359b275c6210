// SPDX-License-Identifier: MIT
#pragma once

#include "Canvas.h"

#include <QHash>
#include <QStringList>

// A thing drawn in drawings/NAME.svg. The drawings are SVG Tiny with its feet, or its waterline, at
// the origin, 1000 units large, in the colours of noon; the mood of the canvas lights them. They
// may hold more than SVG does:
// - when="winter dusk !lamps": the element is there when one of the words holds, and no word with a
//   mark before it does. Words are the season, the light, "lamps", and those of the drawing itself;
// - chance="0.3": the element is there that often;
// - unlit="yes": the colours are those of a light and stay as they are;
// - a colour by a name, "paint", and a share darker or lighter: "paint-20", "paint+12";
// - with="shades", at the outermost element: the drawings whose parts are used.
struct Drawing
{
    QString name;
    QHash<QString, QColor> colors = {};
    QStringList words = {};
    double distance = 0; // as in Mood::Far
};

// Draws it with its origin at the point. 1 of its units is as wide and as high as scale says; a
// negative width turns it round.
void PaintDrawing(Canvas& canvas, const Drawing& drawing, QPointF at, QSizeF scale);

// Whether an element with such a "when" is there; an empty one always is.
bool Holds(const QString& when, const QStringList& words);
// The words that hold for all that is painted on the canvas.
QStringList WordsOf(const Canvas& canvas);
// "#rrggbb", or a name of the drawing's own or of the mood ("ground", "leaf2").
QColor NamedColor(const QString& name, const Mood& mood, const QHash<QString, QColor>& own = {});
