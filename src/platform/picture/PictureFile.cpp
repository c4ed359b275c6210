// SPDX-License-Identifier: MIT
#include "platform/picture/PictureFile.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

struct Signature
{
    const char* format; // as the image plug-ins call it
    QByteArrayView start;
    QByteArrayView later; // after the start, where that alone says too little
    qsizetype laterAt = 0;
};

constexpr int signatureBytes = 16;

const std::array<Signature, 9>& Signatures()
{
    static const std::array<Signature, 9> signatures{{
        {"jpeg", "\xFF\xD8\xFF", {}},
        {"png", "\x89PNG\r\n\x1A\n", {}},
        {"gif", "GIF8", {}},
        {"bmp", "BM", {}},
        {"webp", "RIFF", "WEBP", 8},
        {"tiff", QByteArrayView("II*\0", 4), {}},
        {"tiff", QByteArrayView("MM\0*", 4), {}},
        {"ppm", "P6", {}},
        {"pgm", "P5", {}},
    }};
    return signatures;
}

// JPEG and most PNG come line by line, so the limit there is patience: about four seconds.
constexpr qint64 mostPixelsByLine = 512LL << 20;
constexpr qint64 mostPixelsWhole = 128LL << 20;

// A block of 8x8 pixels takes at least one bit of a JPEG, so no more than 512 pixels come out of a
// byte. Below the limit a file that was cut off still shows what is there.
constexpr qint64 pixelsPerJpegByte = 512;
constexpr qint64 mostPixelsOfCutJpeg = 64LL << 20;

bool IsProgressiveFrame(uchar marker)
{
    return marker == 0xC2 || marker == 0xC6 || marker == 0xCA || marker == 0xCE;
}

bool IsFrame(uchar marker)
{
    // Three in the range of the frames are none: two kinds of tables and a reserved one.
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

} // namespace

bool OpenPictureFile(QFile& file, const QString& path)
{
    if (!QFileInfo(path).isFile()) {
        return false;
    }
    file.setFileName(path);
    return file.open(QIODevice::ReadOnly);
}

QByteArray PictureFormatOf(QFile& file)
{
    const QByteArray head = file.peek(signatureBytes);
    const auto found = std::ranges::find_if(Signatures(), [&head](const Signature& signature) {
        return head.startsWith(signature.start) &&
               head.mid(signature.laterAt).startsWith(signature.later);
    });
    return found == Signatures().end() ? QByteArray() : QByteArray(found->format);
}

bool IsPlausibleSize(const QByteArray& format, QSize size, qint64 fileBytes)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    if (size.isEmpty()) {
        return false;
    }
    if (format == "jpeg" && pixels > std::max(mostPixelsOfCutJpeg, fileBytes * pixelsPerJpegByte)) {
        return false;
    }
    const bool byLine = format == "jpeg" || format == "png";
    return pixels <= (byLine ? mostPixelsByLine : mostPixelsWhole);
}

bool JpegNeedsWholePicture(const QByteArray& jpeg)
{
    const auto byteAt = [&jpeg](qsizetype at) { return uchar(at < jpeg.size() ? jpeg[at] : 0); };
    int colours = 0;
    qsizetype at = 2;
    while (at + 4 < jpeg.size() && byteAt(at) == 0xFF) {
        const uchar marker = byteAt(at + 1);
        if (marker == 0xFF) { // padding
            ++at;
            continue;
        }
        if (IsProgressiveFrame(marker)) {
            return true;
        }
        if (marker == 0xDA) { // start of the first scan
            return byteAt(at + 4) < colours;
        }
        if (IsFrame(marker)) {
            colours = byteAt(at + 9);
        }
        at += 2 + (byteAt(at + 2) << 8 | byteAt(at + 3));
    }
    return false;
}
