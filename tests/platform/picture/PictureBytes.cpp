// SPDX-License-Identifier: MIT
#include "PictureBytes.h"

#include <QBuffer>
#include <QDataStream>
#include <QImageWriter>

QByteArray Encoded(const QImage& image, const char* format, bool progressive)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(progressive);
    writer.setQuality(95);
    return writer.write(image) ? bytes : QByteArray();
}

QByteArray WithOrientation(const QByteArray& jpeg, char orientation)
{
    QByteArray block("Exif\0\0"
                     "II*\0\x08\0\0\0"                 // little-endian, directory at 8
                     "\x01\0"                          // one entry
                     "\x12\x01\x03\0\x01\0\0\0?\0\0\0" // orientation, one short
                     "\0\0\0\0",
                     32);
    block[block.indexOf('?')] = orientation;
    QByteArray bytes = jpeg;
    return bytes.insert(2, QByteArray("\xFF\xE1\0\x22", 4) + block);
}

QByteArray WithThumbnail(const QByteArray& jpeg, const QByteArray& thumbnail, char orientation)
{
    QByteArray block;
    QDataStream stream(&block, QIODevice::WriteOnly); // big-endian
    const auto entry = [&stream](quint16 tag, quint32 value) {
        stream << tag << quint16(4) << quint32(1) << value;
    };
    stream.writeRawData("Exif\0\0MM\0*", 10);
    stream << quint32(8) << quint16(1) << quint16(0x0112) << quint16(3) << quint32(1);
    stream << quint16(orientation) << quint16(0) << quint32(26); // the second directory's place
    stream << quint16(2);
    entry(0x0201, 56);
    entry(0x0202, quint32(thumbnail.size()));
    stream << quint32(0);
    block += thumbnail;
    QByteArray length;
    QDataStream(&length, QIODevice::WriteOnly) << quint16(block.size() + 2);
    QByteArray bytes = jpeg;
    return bytes.insert(2, "\xFF\xE1" + length + block);
}

QByteArray WithClaimedJpegSize(QByteArray jpeg, QSize size)
{
    const qsizetype frame = std::max(jpeg.indexOf("\xFF\xC0"), jpeg.indexOf("\xFF\xC2"));
    QByteArray sides;
    QDataStream(&sides, QIODevice::WriteOnly) << quint16(size.height()) << quint16(size.width());
    return jpeg.replace(frame + 5, sides.size(), sides);
}

QByteArray AbsurdPng()
{
    return QByteArray("\x89PNG\r\n\x1A\n\0\0\0\x0D"
                      "IHDR\0\x01\x86\xA0\0\x01\x86\xA0\x08\x02\0\0\0"
                      "\x27\x30\x9C\x9F" // checksum
                      "\0\0\0\x01IDAT",
                      41);
}

QByteArray Bitmap(QSize size, const QByteArray& pixels)
{
    constexpr quint32 headerBytes = 54;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("BM", 2);
    stream << quint32(headerBytes + pixels.size()) << quint32(0) << headerBytes;
    stream << quint32(40) << qint32(size.width()) << qint32(size.height());
    stream << quint16(1) << quint16(24) << quint32(0) << quint32(pixels.size());
    stream << qint32(2835) << qint32(2835) << quint32(0) << quint32(0);
    return bytes + pixels;
}

QByteArray TwoFrameGif()
{
    const QByteArray descriptor("\x2C\0\0\0\0\x01\0\x01\0\0", 10);
    QByteArray bytes("GIF89a\x01\0\x01\0\x80\0\0\xFF\0\0\0\0\xFF", 19);
    bytes += descriptor + QByteArray("\x02\x02\x44\x01\0", 5); // colour 0
    bytes += descriptor + QByteArray("\x02\x02\x4C\x01\0", 5); // colour 1
    return bytes + '\x3B';
}
