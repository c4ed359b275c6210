// SPDX-License-Identifier: MIT
#include "Backdrop.h"

#include "Sky.h"
#include "Trees.h"

void PaintBackdrop(Canvas& canvas, double horizon, double light)
{
    const Mood& mood = canvas.mood;
    const double x = canvas.width * light;
    const int wide = static_cast<int>(canvas.width / 1000 + 0.5);
    PaintSky(canvas, horizon);
    if (mood.Night()) {
        PaintStars(canvas, 160 + 190 * wide, horizon);
        PaintMoon(canvas, {x, horizon * 0.21}, 42);
    } else if (mood.Dusk()) {
        PaintSun(canvas, {x, horizon * 0.86}, 46);
        PaintStreaks(canvas, 6 + 5 * wide, horizon * 0.2, horizon * 0.85);
    } else if (mood.Dawn()) {
        PaintSun(canvas, {x, horizon * 0.8}, 36);
        PaintStreaks(canvas, 4 + 4 * wide, horizon * 0.15, horizon * 0.8);
    } else if (mood.Fog()) {
        canvas.Glow({x, horizon * 0.45}, 420, QColor(0xfffdf2), 0.75);
        canvas.Ellipse({x, horizon * 0.45}, 40, 40, QColor(255, 254, 246, 170));
    } else if (mood.Storm()) {
        PaintStormClouds(canvas, horizon * 0.72);
    } else {
        canvas.Glow({x, horizon * 0.12}, horizon * 0.9, mood.sun, 0.3);
        PaintClouds(canvas, 2 + 2 * wide, horizon * 0.3, horizon * 0.86, 340);
        PaintBirds(canvas, 5, {canvas.width * (light < 0.5 ? 0.88 : 0.14), horizon * 0.26}, 80);
    }
}

void PaintFarShore(Canvas& canvas, double line, double light)
{
    const Mood& mood = canvas.mood;
    PaintBackdrop(canvas, line, light);
    PaintMountains(canvas, line, line * 0.5, 0.58, mood.Summer() ? 0.4 : 0.8);
    PaintMist(canvas, line - 20, 260, 0.5);
    PaintHills(canvas, line - 70, line - 8, 3);
    const Ridge bank(canvas.random, line - 8, 5, 800);
    PaintHill(canvas, bank, mood.groundDark, 0.2);
    PaintTreeLine(canvas, bank, 62, 0.18);
    PaintTreeLine(canvas, bank, 44, 0.12);
}

void PaintWeather(Canvas& canvas, double horizon)
{
    const Mood& mood = canvas.mood;
    if (mood.Fog()) {
        PaintMist(canvas, horizon, 420, 0.6);
        PaintMist(canvas, horizon + 190, 240, 0.35);
    } else if (mood.Storm()) {
        PaintRain(canvas, static_cast<int>(canvas.width * 0.35));
    } else if (mood.Winter() && (mood.Night() || canvas.random.Chance(0.5))) {
        PaintSnowfall(canvas, static_cast<int>(canvas.width * canvas.height / 5500));
    }
}
