// SPDX-License-Identifier: MIT
#include "PaintedPictures.h"

#include <QImage>

#include <cmath>
#include <random>
#include <vector>

namespace {

constexpr int jpegQuality = 90;
constexpr int noiseStrength = 45; // levels up or down where the noise is strongest

// Waves of the given length in pixels; 0 up to 2 * height.
std::vector<int> Waves(int count, double length, int height, int shift)
{
    std::vector<int> waves;
    waves.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        waves.push_back(height + int(height * std::sin((i + shift) / length)));
    }
    return waves;
}

QImage PaintPicture(QSize size, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    std::minstd_rand random(seed + 1);
    const std::vector<int> sky = Waves(size.width(), 700, 90, seed * 50);
    const std::vector<int> fence = Waves(size.width(), 13, 20, seed);
    const std::vector<int> grass = Waves(size.height(), 9, 20, seed);
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            // Patches without, with half and with full noise, as skies and foliage differ.
            const int noise = (int(random() >> 8) % (2 * noiseStrength + 1) - noiseStrength) *
                              ((x / 400 + y / 300) % 3) / 2;
            const int green = 30 + x * 150 / size.width() + grass[y] + noise;
            const int blue = 30 + y * 150 / size.height() + fence[x] + noise;
            line[x] = qRgb(30 + sky[x] + noise, green, blue);
        }
    }
    return image;
}

} // namespace

QStringList PaintPictures(const QDir& folder, QSize size, int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        const QString path = folder.filePath(
            QStringLiteral("%1x%2-%3.jpg").arg(size.width()).arg(size.height()).arg(i));
        if (!PaintPicture(size, i).save(path, "jpeg", jpegQuality)) {
            return {};
        }
        paths.append(path);
    }
    return paths;
}
