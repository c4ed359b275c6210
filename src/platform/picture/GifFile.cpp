// SPDX-License-Identifier: MIT
#include "platform/picture/GifFile.h"

namespace {

// Including comments; no still picture is this large.
constexpr qint64 maxGifBytes = 32 << 20;

constexpr char pictureBegin = '\x2C';
constexpr char extension = '\x21';
constexpr char trailer = '\x3B';
constexpr char graphicControl = '\xF9'; // the extension that names the transparent colour

// Size of a colour table according to the flags before it; 0 when there is none.
qint64 PaletteBytes(uchar flags)
{
    return (flags & 0x80) != 0 ? 3LL << ((flags & 0x07) + 1) : 0;
}

// Pieces of up to 255 bytes, each preceded by its length, up to an empty one.
QByteArray ReadPieces(QIODevice& file)
{
    QByteArray pieces;
    char length = 0;
    while (file.pos() < maxGifBytes && file.getChar(&length)) {
        pieces += length;
        if (length == 0)
            break;
        pieces += file.read(uchar(length));
    }
    return pieces;
}

QByteArray ReadPicture(QIODevice& file)
{
    constexpr qint64 descriptorBytes = 9;
    QByteArray bytes = pictureBegin + file.read(descriptorBytes);
    bytes += file.read(PaletteBytes(uchar(bytes.back())));
    bytes += file.read(1); // how the pixels are packed
    return bytes + ReadPieces(file);
}

} // namespace

QByteArray ReadFirstOfGif(QIODevice& file)
{
    constexpr qint64 headBytes = 13;
    constexpr qsizetype flagsAt = 10;
    QByteArray gif = file.read(headBytes);
    if (gif.size() < headBytes)
        return gif;
    gif += file.read(PaletteBytes(uchar(gif[flagsAt])));
    char introducer = 0;
    while (file.pos() < maxGifBytes && file.getChar(&introducer) && introducer != trailer) {
        if (introducer == pictureBegin)
            return gif + ReadPicture(file) + trailer;
        char kind = 0;
        if (introducer != extension || !file.getChar(&kind))
            continue; // as the decoder does
        const QByteArray pieces = ReadPieces(file);
        if (kind == graphicControl)
            gif += QByteArray(1, extension) + kind + pieces;
    }
    return gif;
}
