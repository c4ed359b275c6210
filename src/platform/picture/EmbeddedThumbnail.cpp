// SPDX-License-Identifier: MIT
#include "platform/picture/EmbeddedThumbnail.h"

#include "platform/picture/JpegFile.h"
#include "platform/picture/PictureFile.h"
#include "platform/picture/PictureScaling.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <array>
#include <exception>

namespace {

constexpr int maxSegments = 32; // before the EXIF block, which should be the first or the second
constexpr int maxSide = 640;    // pixels; most are 160 by 120

constexpr qsizetype entryBytes = 12; // of a directory

enum ExifTag : quint16 {
    orientationTag = 0x0112,
    thumbnailOffsetTag = 0x0201,
    thumbnailBytesTag = 0x0202,
};

// The numbers of an EXIF block, which is written like a TIFF file. Those beyond its end are 0.
class ExifBlock
{
public:
    explicit ExifBlock(const QByteArray& bytes) : bytes_(bytes), isLittle_(bytes.startsWith("II"))
    {
    }

    qint64 FirstDirectory() const { return Long(4); }
    qint64 DirectoryAfter(qint64 directory) const
    {
        return Long(directory + 2 + Short(directory) * entryBytes);
    }

    // 0 where the directory does not have the tag.
    quint32 Value(qint64 directory, quint16 tag) const
    {
        constexpr quint16 shortType = 3;
        const qint64 end = std::min<qint64>(directory + 2 + Short(directory) * entryBytes,
                                            bytes_.size() - entryBytes + 1);
        for (qint64 entry = directory + 2; entry < end; entry += entryBytes) {
            if (Short(entry) == tag)
                return Short(entry + 2) == shortType ? Short(entry + 8) : Long(entry + 8);
        }
        return 0;
    }

    QByteArray Part(qint64 at, qint64 bytes) const
    {
        const bool isInside = at > 0 && bytes > 0 && at + bytes <= bytes_.size();
        return isInside ? bytes_.mid(at, bytes) : QByteArray();
    }

private:
    template<typename Number>
    Number At(qint64 at) const
    {
        if (at < 0 || at + qint64(sizeof(Number)) > bytes_.size())
            return 0;
        const char* data = bytes_.constData() + at;
        return isLittle_ ? qFromLittleEndian<Number>(data) : qFromBigEndian<Number>(data);
    }
    quint16 Short(qint64 at) const { return At<quint16>(at); }
    quint32 Long(qint64 at) const { return At<quint32>(at); }

    QByteArray bytes_;
    bool isLittle_;
};

// The file is a JPEG. Empty when it has no EXIF block.
QByteArray ReadExifBlock(QFile& file)
{
    constexpr uchar scanMarker = 0xDA;
    constexpr uchar exifMarker = 0xE1;
    constexpr QByteArrayView exifName("Exif\0\0", 6);
    constexpr qint64 headBytes = 4; // marker and length
    qint64 at = 2;
    for (int i = 0; i < maxSegments && file.seek(at); ++i) {
        const QByteArray head = file.read(headBytes + exifName.size());
        if (head.size() < headBytes || head[0] != '\xFF')
            break;
        const auto marker = uchar(head[1]);
        const int length = qFromBigEndian<quint16>(head.constData() + 2);
        if (marker == scanMarker || length < 2)
            break;
        const qint64 bodyBytes = length - 2 - exifName.size();
        if (marker == exifMarker && bodyBytes > 0 && head.endsWith(exifName))
            return file.read(bodyBytes);
        at += 2 + length;
    }
    return {};
}

QImage DecodeThumbnail(QByteArray jpeg)
{
    // Real ones are stored line by line; others may take the decoder long.
    if (jpeg.isEmpty() || JpegNeedsWholePicture(jpeg))
        return {};
    QBuffer buffer(&jpeg);
    QImageReader reader(&buffer, "jpeg");
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > maxSide || size.height() > maxSide)
        return {};
    return reader.read();
}

bool IsBlack(const QImage& image, const QRect& rect)
{
    constexpr int darkest = 24; // of 255; a JPEG's black is not quite black
    qint64 sum = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            sum += qGray(image.pixel(x, y));
    }
    return sum <= qint64(darkest) * rect.width() * rect.height();
}

// Cut to the proportions of size; null when what lies outside is no black bar.
QImage CutToProportions(const QImage& image, QSize size)
{
    QRect inside({}, size.scaled(image.size(), Qt::KeepAspectRatio));
    inside.moveCenter(image.rect().center());
    const int across = image.width() - inside.width();
    const int down = image.height() - inside.height();
    constexpr int rounding = 2; // pixels
    if (across <= rounding && down <= rounding)
        return image;
    // A JPEG's squares let the picture and its bars run into each other.
    const QMargins margins(across > 0 ? 1 : 0, down > 0 ? 1 : 0, across > 0 ? 1 : 0,
                           down > 0 ? 1 : 0);
    const QRect outside = inside.marginsAdded(margins) & image.rect();
    const std::array bars{
        QRect(0, 0, image.width(), outside.top()),
        QRect(0, outside.bottom() + 1, image.width(), image.height() - outside.bottom() - 1),
        QRect(0, 0, outside.left(), image.height()),
        QRect(outside.right() + 1, 0, image.width() - outside.right() - 1, image.height())};
    for (const QRect& bar : bars) {
        if (!IsBlack(image, bar))
            return {};
    }
    return image.copy(inside.marginsRemoved(margins));
}

// The turns that the values 1 to 8 of the orientation tag stand for (EXIF 2.32, 4.6.4).
QImageIOHandler::Transformations TurnOf(quint32 orientation)
{
    constexpr std::array turns{
        QImageIOHandler::TransformationNone,
        QImageIOHandler::TransformationMirror,
        QImageIOHandler::TransformationRotate180,
        QImageIOHandler::TransformationFlip,
        QImageIOHandler::TransformationFlipAndRotate90,
        QImageIOHandler::TransformationRotate90,
        QImageIOHandler::TransformationMirrorAndRotate90,
        QImageIOHandler::TransformationRotate270,
    };
    return orientation >= 1 && orientation <= turns.size() ? turns[orientation - 1] : turns[0];
}

} // namespace

QImage ReadEmbeddedThumbnail(const QString& path, QSize size)
{
    QFile file;
    if (size.isEmpty() || !OpenPictureFile(file, path) || PictureFormatOf(file) != "jpeg")
        return {};
    try {
        const ExifBlock block(ReadExifBlock(file));
        const qint64 first = block.FirstDirectory();
        const qint64 second = block.DirectoryAfter(first);
        QImage image = DecodeThumbnail(block.Part(block.Value(second, thumbnailOffsetTag),
                                                  block.Value(second, thumbnailBytesTag)));
        if (image.isNull())
            return {};
        Turn(image, TurnOf(block.Value(first, orientationTag)));
        return CutToProportions(image, size);
    } catch (const std::exception&) { // out of memory: as good as damaged
        return {};
    }
}
