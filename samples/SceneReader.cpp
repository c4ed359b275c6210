// SPDX-License-Identifier: MIT
#include "SceneReader.h"

#include "Backdrop.h"
#include "Data.h"
#include "Drawing.h"
#include "Figures.h"
#include "Houses.h"
#include "Sky.h"
#include "Step.h"
#include "Trees.h"
#include "Water.h"
#include "Woods.h"

namespace {

// Small ellipses strewn over a part of the picture: leaves, sand, lights.
void PaintDabs(const Step& step)
{
    Step dab = step;
    for (; dab.repetition < step.Count("count"); ++dab.repetition) {
        const QColor color = dab.Color("color");
        const double size = dab.Number("size");
        dab.canvas.Ellipse(
            dab.Place(), size, size * dab.Number("flat", 1),
            Faded(dab.Has("unlit") ? color : dab.canvas.mood.Lit(color), dab.Number("opacity", 1)));
    }
}

using Painter = void (*)(Canvas&, const Step&);

// clang-format off
const QHash<QString, Painter> painters{
    {"backdrop", [](Canvas& c, const Step& s) { PaintBackdrop(c, s.Y("horizon"), s.Number("light")); }},
    {"sky", [](Canvas& c, const Step& s) { PaintSky(c, s.Y("horizon")); }},
    {"milkyway", [](Canvas& c, const Step& s) { PaintMilkyWay(c, s.Y("horizon")); }},
    {"stars", [](Canvas& c, const Step& s) { PaintStars(c, s.Count("count"), s.Y("horizon")); }},
    {"clouds", [](Canvas& c, const Step& s) { PaintClouds(c, s.Count("count"), s.Y("from"), s.Y("to"), s.Number("size")); }},
    {"birds", [](Canvas& c, const Step& s) { PaintBirds(c, s.Count("count"), s.Place(), s.Number("spread")); }},
    {"lightning", [](Canvas& c, const Step& s) { PaintLightning(c, s.Place(), s.Number("height")); }},
    {"glow", [](Canvas& c, const Step& s) { c.Glow(s.Place(), s.Number("size"), s.Color("color"), s.Number("opacity")); }},
    {"mist", [](Canvas& c, const Step& s) { PaintMist(c, s.Y(), s.Number("thickness"), s.Number("strength")); }},
    {"weather", [](Canvas& c, const Step& s) { PaintWeather(c, s.Y("horizon")); }},
    {"snowfall", [](Canvas& c, const Step& s) { PaintSnowfall(c, s.Count("count")); }},
    {"hills", [](Canvas& c, const Step& s) { PaintHills(c, s.Y("from"), s.Y("to"), s.Count("layers")); }},
    {"mountains", [](Canvas& c, const Step& s) { PaintMountains(c, s.Y(), s.Number("height"), s.Far(), s.Number("snow")); }},
    {"hill", [](Canvas& c, const Step& s) { PaintHill(c, s.AddRidge(), s.Color("color"), s.Far()); }},
    {"ground", [](Canvas& c, const Step& s) { PaintGround(c, s.AddRidge()); }},
    {"path", [](Canvas& c, const Step& s) { PaintPath(c, s.Place(), {s.X("to-x"), s.Y("to-y")}, s.Number("width"), s.Color("color")); }},
    {"flowers", [](Canvas& c, const Step& s) { PaintFlowers(c, s.On(), s.Count("count"), s.Number("size")); }},
    {"dabs", [](Canvas&, const Step& s) { PaintDabs(s); }},
    {"litter", [](Canvas& c, const Step& s) { PaintLitter(c, s.Count("count"), s.Y()); }},
    {"tree", [](Canvas& c, const Step& s) { PaintTree(c, s.Place(), s.Number("height"), s.Far()); }},
    {"leaftree", [](Canvas& c, const Step& s) { PaintLeafTree(c, s.Place(), s.Number("height"), s.Color("color"), s.Far()); }},
    {"baretree", [](Canvas& c, const Step& s) { PaintBareTree(c, s.Place(), s.Number("height"), s.Far()); }},
    {"conifer", [](Canvas& c, const Step& s) { PaintConifer(c, s.Place(), s.Number("height"), s.Far()); }},
    {"bush", [](Canvas& c, const Step& s) { PaintBush(c, s.Place(), s.Number("size"), s.Far()); }},
    {"treeline", [](Canvas& c, const Step& s) { PaintTreeLine(c, s.On(), s.Number("size"), s.Far()); }},
    {"reeds", [](Canvas& c, const Step& s) { PaintReeds(c, s.Place(), s.Number("width"), s.Number("height")); }},
    {"orchard", [](Canvas& c, const Step&) { PaintOrchard(c); }},
    {"farshore", [](Canvas& c, const Step& s) { PaintFarShore(c, s.Y(), s.Number("light")); }},
    {"woods", [](Canvas& c, const Step& s) { PaintWoods(c, s.Count("layer"), s.Y()); }},
    {"clearing", [](Canvas& c, const Step& s) { PaintClearing(c, s.Y()); }},
    {"beams", [](Canvas& c, const Step& s) { PaintBeams(c, s.Y()); }},
    {"stems", [](Canvas& c, const Step& s) { PaintStems(c, s.Count("layer"), s.Y()); }},
    {"canopy", [](Canvas& c, const Step& s) { PaintCanopy(c, s.Count("layer")); }},
    {"snowyrow", [](Canvas& c, const Step& s) { PaintSnowyRow(c, s.Count("layer"), s.Y()); }},
    {"water", [](Canvas& c, const Step& s) { PaintWater(c, s.Y(), s.Number("roughness")); }},
    {"ice", [](Canvas& c, const Step& s) { PaintIce(c, s.Y()); }},
    {"surf", [](Canvas& c, const Step& s) { PaintSurf(c, s.Y("from"), s.Y("to")); }},
    {"glitter", [](Canvas& c, const Step& s) { PaintGlitter(c, s.X(), s.Y(), 130, c.mood.sun); }},
    {"houses", [](Canvas& c, const Step& s) { PaintHouseRow(c, s.X("from"), s.X("to"), s.Y(), s.Number("size"), s.Far()); }},
    {"roofs", [](Canvas& c, const Step& s) { PaintRoofs(c, s.Y(), s.Number("size"), s.Far()); }},
    {"laneside", [](Canvas& c, const Step& s) { PaintLaneSide(c, s.Text("side") == u"left", s.Place(), s.Y("eye")); }},
    {"cobbles", [](Canvas& c, const Step& s) { PaintCobbles(c, s.Y()); }},
    {"people", [](Canvas& c, const Step& s) { PaintPeople(c, s.Place(), s.Number("height")); }},
    {"person", [](Canvas& c, const Step& s) { PaintPerson(c, {s.Text("name"), s.Text("activity")}, s.Place(), s.Number("height"), s.Has("leftward")); }},
    {"firstperson", [](Canvas& c, const Step& s) { PaintPerson(c, c.people.front(), s.Place(), s.Number("height"), false); }},
    {"lastperson", [](Canvas& c, const Step& s) { PaintPerson(c, c.people.back(), s.Place(), s.Number("height"), true); }},
};
// clang-format on

void Paint(Step& step)
{
    const Painter drawing = [](Canvas&, const Step& s) { s.Draw(); };
    const Painter painter = painters.value(step.name, drawing);
    const bool isRepeated = step.Has("every");
    do {
        painter(step.canvas, step);
        step.shift += step.Number("every");
        ++step.repetition;
    } while (isRepeated && step.X() < step.canvas.width + 60);
}

} // namespace

void PaintScene(Canvas& canvas, const QString& name)
{
    QHash<QString, Ridge> ridges;
    ReadElements(QStringLiteral("scenes/%1.xml").arg(name), [&](const QXmlStreamReader& reader) {
        Step step(canvas, ridges, reader);
        if (Holds(step.Text("when"), WordsOf(canvas)))
            Paint(step);
    });
}
