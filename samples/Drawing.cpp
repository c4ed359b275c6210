// SPDX-License-Identifier: MIT
#include "Drawing.h"

#include "Data.h"

#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

// Writes a drawing as plain SVG, as it looks on one canvas.
class Lighting
{
public:
    Lighting(Canvas& canvas, const Drawing& drawing)
        : canvas_(canvas), drawing_(drawing), words_(WordsOf(canvas) + drawing.words)
    {
    }

    QByteArray Light()
    {
        QByteArray text;
        QXmlStreamWriter writer(&text);
        writer.writeStartElement(QStringLiteral("svg"));
        writer.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
        writer.writeNamespace(links, QStringLiteral("xlink"));
        Copy(drawing_.name, writer);
        writer.writeEndElement();
        return text;
    }

private:
    // What the drawing is made "with" comes first.
    void Copy(const QString& name, QXmlStreamWriter& writer)
    {
        QXmlStreamReader reader(ReadData(QStringLiteral("drawings/%1.svg").arg(name)));
        reader.readNextStartElement(); // the svg element itself
        writer.writeStartElement(QStringLiteral("defs"));
        const QString parts = reader.attributes().value(QLatin1String("with")).toString();
        for (const QString& part : parts.split(u' ', Qt::SkipEmptyParts))
            Copy(part, writer);
        writer.writeEndElement();
        while (reader.readNextStartElement())
            CopyElement(reader, writer, false);
        if (reader.hasError())
            throw std::runtime_error(
                qPrintable(name + QStringLiteral(": ") + reader.errorString()));
    }

    void CopyElement(QXmlStreamReader& reader, QXmlStreamWriter& writer, bool unlit)
    {
        const QXmlStreamAttributes attributes = reader.attributes();
        if (!IsThere(attributes))
            return reader.skipCurrentElement();
        unlit = unlit || attributes.hasAttribute(QLatin1String("unlit"));
        writer.writeStartElement(reader.name().toString());
        for (const QXmlStreamAttribute& attribute : attributes)
            CopyAttribute(attribute, writer, unlit);
        while (reader.readNextStartElement())
            CopyElement(reader, writer, unlit);
        writer.writeEndElement();
    }

    bool IsThere(const QXmlStreamAttributes& attributes)
    {
        return Holds(attributes.value(QLatin1String("when")).toString(), words_) &&
               (!attributes.hasAttribute(QLatin1String("chance")) ||
                canvas_.random.Chance(attributes.value(QLatin1String("chance")).toDouble()));
    }

    void CopyAttribute(const QXmlStreamAttribute& attribute, QXmlStreamWriter& writer, bool unlit)
    {
        static constexpr std::array ours{"when", "chance", "unlit"};
        static constexpr std::array colors{"fill", "stroke", "stop-color"};
        const auto isNamed = [&attribute](const char* name) {
            return attribute.name() == QLatin1String(name);
        };
        QString value = attribute.value().toString();
        if (std::any_of(ours.begin(), ours.end(), isNamed))
            return;
        if (std::any_of(colors.begin(), colors.end(), isNamed) && value != QLatin1String("none") &&
            !value.startsWith(QLatin1String("url(")))
            value = ColorOf(value, unlit).name();
        if (attribute.namespaceUri().isEmpty())
            writer.writeAttribute(attribute.name().toString(), value);
        else
            writer.writeAttribute(links, attribute.name().toString(), value);
    }

    QColor ColorOf(const QString& text, bool unlit) const
    {
        const auto sign = std::find_if(text.begin(), text.end(), [](QChar letter) {
            return letter == u'-' || letter == u'+';
        });
        const qsizetype length = sign - text.begin();
        const QColor noon = NamedColor(text.left(length), canvas_.mood, drawing_.colors);
        const QColor color = unlit ? noon : canvas_.mood.Far(noon, drawing_.distance);
        const double share = text.mid(length + 1).toDouble() / 100;
        return length < text.size() && *sign == u'-' ? Darker(color, share) : Lighter(color, share);
    }

    const QString links = QStringLiteral("http://www.w3.org/1999/xlink");
    Canvas& canvas_;
    const Drawing& drawing_;
    QStringList words_;
};

} // namespace

void PaintDrawing(Canvas& canvas, const Drawing& drawing, QPointF at, QSizeF scale)
{
    QSvgRenderer renderer(Lighting(canvas, drawing).Light());
    const QRectF box(-500, -500, 1000,
                     1000); // any: what lies outside is drawn too
    renderer.setViewBox(box);
    canvas.painter.save();
    canvas.painter.translate(at);
    canvas.painter.scale(scale.width(), scale.height());
    renderer.render(&canvas.painter, box);
    canvas.painter.restore();
}

bool Holds(const QString& when, const QStringList& words)
{
    bool isAnyAsked = false;
    bool isAnyTrue = false;
    for (const QString& word : when.split(u' ', Qt::SkipEmptyParts)) {
        if (word.startsWith(u'!')) {
            if (words.contains(word.mid(1)))
                return false;
            continue;
        }
        isAnyAsked = true;
        isAnyTrue = isAnyTrue || words.contains(word);
    }
    return isAnyTrue || !isAnyAsked;
}

QStringList WordsOf(const Canvas& canvas)
{
    const Mood& mood = canvas.mood;
    QStringList words{mood.season.toLower(), mood.light.toLower()};
    if (mood.Lamps())
        words += QStringLiteral("lamps");
    if (mood.Winter() && mood.Dawn())
        words += QStringLiteral("early"); // those who are up have the light on
    if (mood.Lamps() || mood.Storm() || mood.Fog())
        words += QStringLiteral("burning"); // the lamps of lighthouses
    if (!canvas.people.empty())
        words += QStringLiteral("people");
    return words;
}

QColor NamedColor(const QString& name, const Mood& mood, const QHash<QString, QColor>& own)
{
    const QHash<QString, QColor> ofMood{
        {QStringLiteral("ground"), mood.ground},   {QStringLiteral("grounddark"), mood.groundDark},
        {QStringLiteral("hill"), mood.hill},       {QStringLiteral("water"), mood.water},
        {QStringLiteral("sun"), mood.sun},         {QStringLiteral("leaf0"), mood.leaves[0]},
        {QStringLiteral("leaf1"), mood.leaves[1]}, {QStringLiteral("leaf2"), mood.leaves[2]},
        {QStringLiteral("leaf3"), mood.leaves[3]}};
    const QColor color = own.value(name, ofMood.value(name, QColor(name)));
    if (!color.isValid())
        throw std::runtime_error(qPrintable(QStringLiteral("no such colour: ") + name));
    return color;
}
