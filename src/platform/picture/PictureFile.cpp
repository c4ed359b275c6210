// SPDX-License-Identifier: MIT
#include "platform/picture/PictureFile.h"

#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cctype>

namespace {

struct Signature
{
    const char* format; // its name for the image plug-ins
    QByteArrayView start;
    QByteArrayView later; // after the start, where that alone is ambiguous
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

// Far more than any photograph has.
constexpr qint64 maxFileBytes = 512LL << 20;

// JPEG and most PNG are decoded line by line, so only time limits them: about two seconds.
constexpr qint64 maxPixelsOfJpeg = 512LL << 20;
constexpr qint64 maxPixelsOfPng = 256LL << 20;
constexpr qint64 maxPixelsWhole = 128LL << 20;

// A block of 8x8 pixels takes at least one bit of a JPEG, so no more than 512 pixels come out of a
// byte. Below the limit a truncated file still shows what is there.
constexpr qint64 pixelsPerJpegByte = 512;
constexpr qint64 maxPixelsOfCutJpeg = 64LL << 20;

// The decoder reads a header of any length, a byte at a time.
constexpr qint64 maxPnmHeaderBytes = 4096;

// After the signature there must be three numbers, separated by blanks and comments.
bool HasSensiblePnmHeader(QFile& file)
{
    const QByteArray head = file.peek(maxPnmHeaderBytes);
    int numbers = 0;
    bool inComment = false;
    bool inNumber = false;
    for (const char byte : head.mid(2)) {
        inComment = byte == '#' || (inComment && byte != '\n');
        const bool isBlank = inComment || std::isspace(uchar(byte)) != 0;
        numbers += inNumber && isBlank;
        inNumber = !isBlank;
        if (numbers == 3) {
            return true;
        }
    }
    return false;
}

} // namespace

bool OpenPictureFile(QFile& file, const QString& path)
{
    if (!QFileInfo(path).isFile()) {
        return false;
    }
    file.setFileName(path);
    return file.size() <= maxFileBytes && file.open(QIODevice::ReadOnly);
}

QByteArray PictureFormatOf(QFile& file)
{
    const QByteArray head = file.peek(signatureBytes);
    const auto found = std::ranges::find_if(Signatures(), [&head](const Signature& signature) {
        return head.startsWith(signature.start) &&
               head.mid(signature.laterAt).startsWith(signature.later);
    });
    const QByteArray format =
        found == Signatures().end() ? QByteArray() : QByteArray(found->format);
    const bool isPnm = format == "ppm" || format == "pgm";
    return isPnm && !HasSensiblePnmHeader(file) ? QByteArray() : format;
}

bool IsPlausibleSize(const QByteArray& format, QSize size, qint64 fileBytes)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    if (size.isEmpty()) {
        return false;
    }
    if (format == "jpeg" && pixels > std::max(maxPixelsOfCutJpeg, fileBytes * pixelsPerJpegByte)) {
        return false;
    }
    if (format == "png") {
        return pixels <= maxPixelsOfPng;
    }
    return pixels <= (format == "jpeg" ? maxPixelsOfJpeg : maxPixelsWhole);
}

bool IsInterlacedPng(QFile& file)
{
    constexpr qsizetype headerBytes = 29; // up to the interlace mark in the first chunk
    const QByteArray head = file.peek(headerBytes);
    return head.size() == headerBytes && head.back() != 0;
}

qint64 WebpBytes(QFile& file)
{
    constexpr qint64 headBytes = 8; // not counted in the length
    const QByteArray head = file.peek(headBytes);
    if (head.size() < headBytes) {
        return file.size();
    }
    const qint64 claimed = headBytes + qFromLittleEndian<quint32>(head.constData() + 4);
    return std::min(claimed, file.size());
}
