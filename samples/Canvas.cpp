// SPDX-License-Identifier: MIT
#include "Canvas.h"

#include <algorithm>
#include <cmath>

namespace {

quint32 SeedOf(const QString& name)
{
    quint32 seed = 2166136261U;
    for (const QChar letter : name) {
        seed = (seed ^ letter.unicode()) * 16777619U;
    }
    return seed;
}

uchar Toned(int channel, double light, int grain)
{
    const int value = static_cast<int>(channel * light) + grain;
    return static_cast<uchar>(std::clamp(value, 0, 255));
}

} // namespace

Random::Random(const QString& name) : engine_(SeedOf(name)) {}

double Random::Between(double low, double high)
{
    return low + (high - low) * (static_cast<double>(engine_()) / 4294967296.0);
}

int Random::Below(int count)
{
    return static_cast<int>(Between(0, count));
}

bool Random::Chance(double probability)
{
    return Between(0, 1) < probability;
}

Canvas::Canvas(QSize size, const QString& name, const Mood& sheetMood)
    : image(size, QImage::Format_RGB32), mood(sheetMood), random(name)
{
    image.fill(mood.skyLow);
    const double scale = std::min(size.width(), size.height()) / 1000.0;
    width = size.width() / scale;
    height = size.height() / scale;
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scale, scale);
    painter.setPen(Qt::NoPen);
}

void Canvas::Fill(const QPainterPath& path, const QBrush& brush)
{
    painter.fillPath(path, brush);
}

void Canvas::Fill(const QPolygonF& polygon, const QBrush& brush)
{
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    painter.fillPath(path, brush);
}

void Canvas::Ellipse(QPointF center, double radiusX, double radiusY, const QBrush& brush)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(center, radiusX, radiusY);
}

void Canvas::Stroke(const QPainterPath& path, const QColor& color, double thickness)
{
    painter.strokePath(path, QPen(color, thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void Canvas::Line(QPointF from, QPointF to, const QColor& color, double thickness)
{
    painter.setPen(QPen(color, thickness, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(from, to);
    painter.setPen(Qt::NoPen);
}

void Canvas::Glow(QPointF center, double radius, const QColor& color, double strength)
{
    QRadialGradient gradient(center, radius);
    gradient.setColorAt(0.0, Faded(color, strength));
    gradient.setColorAt(0.25, Faded(color, strength * 0.55));
    gradient.setColorAt(0.6, Faded(color, strength * 0.14));
    gradient.setColorAt(1.0, Faded(color, 0));
    Ellipse(center, radius, radius, gradient);
}

QLinearGradient Fade(double top, double bottom, const QColor& upper, const QColor& lower)
{
    QLinearGradient gradient(0, top, 0, bottom);
    gradient.setColorAt(0, upper);
    gradient.setColorAt(1, lower);
    return gradient;
}

QLinearGradient Across(double left, double right, const QColor& first, const QColor& last)
{
    QLinearGradient gradient(left, 0, right, 0);
    gradient.setColorAt(0, first);
    gradient.setColorAt(1, last);
    return gradient;
}

void FinishPicture(QImage& image, Random& random)
{
    quint32 noise = static_cast<quint32>(random.Below(1 << 30)) | 1U;
    const double halfWidth = image.width() / 2.0;
    const double halfHeight = image.height() / 2.0;
    for (int y = 0; y < image.height(); ++y) {
        auto* pixel = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double down = (y - halfHeight) / halfHeight;
        for (int x = 0; x < image.width(); ++x, ++pixel) {
            const double aside = (x - halfWidth) / halfWidth;
            const double corner = aside * aside + down * down;
            const double light = 1.015 - 0.045 * corner * corner;
            noise = noise * 1664525U + 1013904223U;
            const int grain = static_cast<int>((noise >> 24) % 9) - 4;
            *pixel = qRgb(Toned(qRed(*pixel), light, grain), Toned(qGreen(*pixel), light, grain),
                          Toned(qBlue(*pixel), light, grain));
        }
    }
}
