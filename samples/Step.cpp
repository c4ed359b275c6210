// SPDX-License-Identifier: MIT
#include "Step.h"

#include "Drawing.h"

#include <stdexcept>

QColor Step::Color(const char* attribute) const
{
    const QStringList names = Text(attribute).split(u' ');
    return NamedColor(names[repetition % names.size()], canvas.mood);
}

double Step::Measure(const QString& text, double whole) const
{
    const QStringList range = text.split(QStringLiteral(".."));
    if (range.size() == 2)
        return canvas.random.Between(Measure(range[0], whole), Measure(range[1], whole));
    double sum = 0;
    qsizetype start = 0;
    for (qsizetype end = 1; end <= text.size(); ++end) {
        if (end < text.size() && text[end] != u'+' && text[end] != u'-')
            continue;
        sum += Term(text.mid(start, end - start), whole);
        start = end;
    }
    return sum;
}

double Step::Term(const QString& term, double whole) const
{
    if (term.endsWith(u'%'))
        return term.chopped(1).toDouble() / 100 * whole;
    bool isNumber = false;
    const double number = term.toDouble(&isNumber);
    return isNumber ? number : RidgeOf(term.startsWith(u'+') ? term.mid(1) : term).At(X());
}

void Step::Draw() const
{
    Drawing drawing{.name = name, .distance = Far()};
    for (const char* color :
         {"paint", "sail", "cloth", "first", "second", "wall", "roof", "crop"}) {
        if (Has(color))
            drawing.colors.insert(QLatin1String(color), Color(color));
    }
    const double width = Has("width") ? Measure(Text("width"), canvas.width) : Number("size");
    const double height = Number(Has("height") ? "height" : "size");
    PaintDrawing(canvas, drawing, Place(), QSizeF(width, height) / 1000);
}

const Ridge& Step::RidgeOf(const QString& id) const
{
    const auto found = ridges.constFind(id);
    if (found == ridges.constEnd())
        throw std::runtime_error(qPrintable(QStringLiteral("no such ridge: ") + id));
    return *found;
}

Ridge& Step::AddRidge() const
{
    return *ridges.insert(Text("id"),
                          Ridge(canvas.random, Y(), Number("amplitude"), Number("wavelength")));
}
