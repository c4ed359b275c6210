// SPDX-License-Identifier: MIT
#include "platform/picture/TiffFile.h"

#include <QDataStream>

#include <algorithm>
#include <array>
#include <limits>

namespace {

enum Tag : quint16 {
    width = 256,
    height = 257,
    bitsPerSample = 258,
    compression = 259,
    samplesPerPixel = 277,
    rowsPerStrip = 278,
    planes = 284,
    tileWidth = 322,
    tileHeight = 323,
};

constexpr quint16 uncompressed = 1;

// While the decoder converts a tag's numbers to larger ones it holds both.
constexpr qint64 bytesPerTagByte = 5;

// The decoder cuts stored strips that are more than this many times the size of their contents.
constexpr qint64 maxStoredPerDecoded = 10;

// By type number, from 0; unused numbers have no size.
constexpr std::array<int, 19> typeBytes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4, 0, 0, 8, 8, 8};

// Saturates, as any of the claimed numbers may be the maximum.
qint64 Product(std::initializer_list<qint64> factors)
{
    qint64 product = 1;
    for (const qint64 factor : factors) {
        if (factor > 0 && product > std::numeric_limits<qint64>::max() / factor)
            return std::numeric_limits<qint64>::max();
        product *= factor;
    }
    return product;
}

class Directory
{
public:
    explicit Directory(QIODevice& file) : file_(file), stream_(&file)
    {
        const qint64 before = file_.pos();
        file_.seek(0);
        const bool isLittle = file_.read(4).startsWith('I');
        stream_.setByteOrder(isLittle ? QDataStream::LittleEndian : QDataStream::BigEndian);
        quint32 at = 0;
        stream_ >> at;
        file_.seek(at);
        quint16 count = 0;
        stream_ >> count;
        for (int i = 0; i < count && stream_.status() == QDataStream::Ok; ++i)
            ReadEntry(qint64(at) + 2 + i * 12LL);
        file_.seek(before);
    }

    qint64 TagBytes() const { return tagBytes_; }

    qint64 StripBytes() const
    {
        const bool isTiled = tileWidth_ > 0 && tileHeight_ > 0;
        const qint64 rows = std::min(rows_, height_);
        // The decoder cuts these into small ones.
        if (!isTiled && IsUncompressed() && rows == height_ && planes_ == 1)
            return 0;
        const qint64 bytesPerSample = (bits_ + 7) / 8;
        return isTiled ? Product({tileWidth_, tileHeight_, samples_, bytesPerSample})
                       : Product({width_, rows, samples_, bytesPerSample});
    }

    bool IsUncompressed() const { return compression_ == uncompressed; }

private:
    void ReadEntry(qint64 at)
    {
        file_.seek(at);
        quint16 tag = 0;
        quint16 type = 0;
        quint32 count = 0;
        stream_ >> tag >> type >> count;
        const qint64 bytes = type < typeBytes.size() ? qint64(count) * typeBytes[type] : 0;
        // Claims beyond the file's end are refused before they cost anything.
        tagBytes_ += std::min(bytes, file_.size());
        qint64* number = NumberOf(tag);
        if (!number || count == 0)
            return;
        if (bytes > 4) { // the numbers are elsewhere
            quint32 place = 0;
            stream_ >> place;
            file_.seek(place);
        }
        *number = ReadNumber(type);
        stream_.resetStatus();
    }

    qint64 ReadNumber(quint16 type)
    {
        quint8 byte = 0;
        quint16 shortNumber = 0;
        quint32 number = 0;
        switch (type) {
        case 1:
            stream_ >> byte;
            return byte;
        case 3:
            stream_ >> shortNumber;
            return shortNumber;
        default:
            stream_ >> number;
            return number;
        }
    }

    qint64* NumberOf(quint16 tag)
    {
        switch (tag) {
        case width:
            return &width_;
        case height:
            return &height_;
        case bitsPerSample:
            return &bits_;
        case compression:
            return &compression_;
        case samplesPerPixel:
            return &samples_;
        case rowsPerStrip:
            return &rows_;
        case planes:
            return &planes_;
        case tileWidth:
            return &tileWidth_;
        case tileHeight:
            return &tileHeight_;
        default:
            return nullptr;
        }
    }

    QIODevice& file_;
    QDataStream stream_;
    qint64 tagBytes_ = 0;
    // The defaults for missing tags.
    qint64 width_ = 0;
    qint64 height_ = 0;
    qint64 bits_ = 1;
    qint64 compression_ = uncompressed;
    qint64 samples_ = 1;
    qint64 rows_ = std::numeric_limits<quint32>::max();
    qint64 planes_ = 1;
    qint64 tileWidth_ = 0;
    qint64 tileHeight_ = 0;
};

} // namespace

qint64 TiffDecoderBytes(QIODevice& file)
{
    const Directory directory(file);
    const qint64 decoded = directory.StripBytes();
    const qint64 maxStored =
        directory.IsUncompressed() ? decoded : Product({decoded, maxStoredPerDecoded});
    const qint64 most = std::numeric_limits<qint64>::max() / 4;
    return std::min(decoded, most) + std::min(maxStored, file.size()) +
           std::min(directory.TagBytes() * bytesPerTagByte, most);
}
