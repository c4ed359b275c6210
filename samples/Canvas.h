// SPDX-License-Identifier: MIT
#pragma once

#include "Mood.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <random>
#include <vector>

// The same name always gives the same numbers, on every machine.
class Random
{
public:
    explicit Random(const QString& name);

    double Between(double low, double high);
    int Below(int count);
    bool Chance(double probability);

private:
    std::mt19937 engine_;
};

struct Person
{
    QString name;
    QString activity;
};

// A sheet to paint on. Its shorter side is 1000 units long, whatever the number of pixels.
struct Canvas
{
    Canvas(QSize size, const QString& name, const Mood& sheetMood);

    void Fill(const QPainterPath& path, const QBrush& brush);
    void Fill(const QPolygonF& polygon, const QBrush& brush);
    void Ellipse(QPointF center, double radiusX, double radiusY, const QBrush& brush);
    void Stroke(const QPainterPath& path, const QColor& color, double thickness);
    void Line(QPointF from, QPointF to, const QColor& color, double thickness);
    void Glow(QPointF center, double radius, const QColor& color, double strength);

    QImage image;
    QPainter painter;
    double width;
    double height;
    Mood mood;
    Random random;
    std::vector<Person> people;
};

QLinearGradient Fade(double top, double bottom, const QColor& upper, const QColor& lower);
QLinearGradient Across(double left, double right, const QColor& first, const QColor& last);

// The last coat: darker corners and the grain of the paper. The painter must be done before.
void FinishPicture(QImage& image, Random& random);
