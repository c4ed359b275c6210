// SPDX-License-Identifier: MIT
#include "platform/picture/PictureScaling.h"

#include <QColorSpace>
#include <QTransform>

#include <algorithm>
#include <cstring>

namespace {

constexpr qint64 pixelsPerBand = 4LL << 20;

// A view of the lines from first to end - 1; image must outlive it.
QImage LinesOf(const QImage& image, int first, int end)
{
    QImage lines(image.constScanLine(first), image.width(), end - first, image.bytesPerLine(),
                 image.format());
    if (image.colorCount() > 0)
        lines.setColorTable(image.colorTable());
    return lines;
}

QImage ScaledAtOnce(QImage image, QSize size)
{
    ConvertToDraw(image);
    if (image.size() != size) {
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        ConvertToDraw(image);
    }
    return image;
}

} // namespace

void CompletePalette(QImage& image)
{
    constexpr int maxPaletteBits = 8;
    if (image.pixelFormat().colorModel() != QPixelFormat::Indexed || image.depth() > maxPaletteBits)
        return;
    QList<QRgb> palette = image.colorTable();
    const qsizetype colours = qsizetype(1) << image.depth();
    if (palette.size() >= colours)
        return;
    palette.resize(colours, qRgb(0, 0, 0));
    image.setColorTable(palette);
}

void ConvertToDraw(QImage& image)
{
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
}

QImage ScaledToDraw(const QImage& image, QSize size)
{
    const qint64 pixels = qint64(image.width()) * image.height();
    const int bands = int(std::min<qint64>(pixels / pixelsPerBand, image.height()));
    if (bands <= 1) {
        return ScaledAtOnce(image, size);
    }
    // Each band gives at least one line.
    const QSize banded(size.width(), std::clamp(size.height(), bands, image.height()));
    QImage scaled(banded, image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                  : QImage::Format_RGB32);
    const auto lineAt = [&](qint64 line) { return int(line * image.height() / banded.height()); };
    for (qint64 band = 0; band < bands && !scaled.isNull(); ++band) {
        const int first = int(band * banded.height() / bands);
        const int end = int((band + 1) * banded.height() / bands);
        const QImage part =
            ScaledAtOnce(LinesOf(image, lineAt(first), lineAt(end)), {banded.width(), end - first});
        if (part.isNull()) {
            return {};
        }
        for (int line = first; line < end; ++line) {
            std::memcpy(scaled.scanLine(line), part.constScanLine(line - first),
                        std::size_t(banded.width()) * sizeof(QRgb));
        }
    }
    scaled.setColorSpace(image.colorSpace());
    return ScaledAtOnce(scaled, size);
}

void ConvertToScreenColours(QImage& image)
{
    const QColorSpace profile = image.colorSpace();
    if (profile.isValid() && profile != QColorSpace(QColorSpace::SRgb)) {
        image.convertToColorSpace(QColorSpace::SRgb);
        ConvertToDraw(image);
    }
}

void Turn(QImage& image, QImageIOHandler::Transformations turn)
{
    const bool mirror = turn.testFlag(QImageIOHandler::TransformationMirror);
    const bool flip = turn.testFlag(QImageIOHandler::TransformationFlip);
    if (mirror || flip) {
        image = std::move(image).mirrored(mirror, flip);
    }
    if (turn.testFlag(QImageIOHandler::TransformationRotate90)) {
        image = image.transformed(QTransform().rotate(90));
    }
}
