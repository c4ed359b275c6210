// SPDX-License-Identifier: MIT
#include "platform/picture/JpegFile.h"

#include "platform/picture/JpegMarkers.h"
#include "platform/picture/JpegScans.h"

#include <QtEndian>

#include <algorithm>
#include <bitset>
#include <vector>

using namespace JpegMarker;

namespace {

// Thumbnails, depth maps and profiles included; real files are far smaller.
constexpr qint64 maxHeadBytes = 32 << 20;

constexpr qint64 bytesPerBlock = 128; // 8x8 coefficients of two bytes

// A scan may say "nothing new" for 32,767 blocks in two bytes, and the decoder still visits each.
// At eight nanoseconds a visit this is about a second. A progressive photograph of 100 megapixels
// takes a third of it.
constexpr qint64 maxBlockVisits = 128LL << 20;

bool IsProgressiveFrame(uchar marker)
{
    return marker == 0xC2 || marker == 0xC6 || marker == 0xCA || marker == 0xCE;
}

bool IsFrame(uchar marker)
{
    // Three markers in this range are not frames: two kinds of tables and a reserved one.
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Selects the few application segments that affect how the pixels are shown.
class Choice
{
public:
    bool IsWanted(uchar marker, const QByteArray& body)
    {
        if (!IsOfPrograms(marker))
            return true;
        if (marker == profile)
            return body.startsWith(QByteArrayView("ICC_PROFILE\0", 12));
        const bool isKnown = marker == programFirst || marker == colours ||
                             (marker == exif && body.startsWith(QByteArrayView("Exif\0", 5)));
        const std::size_t row = marker & 0x0F;
        if (!isKnown || seen_[row])
            return false;
        seen_.set(row);
        return true;
    }

private:
    std::bitset<16> seen_;
};

// Skips whatever precedes the next marker, as the decoder does.
uchar ReadMarker(QIODevice& file)
{
    char byte = 0;
    while (file.pos() < maxHeadBytes && file.getChar(&byte)) {
        if (uchar(byte) != fill)
            continue;
        while (uchar(byte) == fill && file.getChar(&byte)) {
        }
        if (uchar(byte) != none && uchar(byte) != fill)
            return uchar(byte);
    }
    return none;
}

struct Segment
{
    uchar marker = none;
    qsizetype at = 0;   // where its marker begins
    qsizetype next = 0; // where it ends; for a scan, where its data begin
};

// The next segment at or after a place, even within scan data; marker is none at the end.
Segment NextSegment(const QByteArray& jpeg, qsizetype at)
{
    const auto byteAt = [&jpeg](qsizetype index) { return uchar(jpeg[index]); };
    for (at = jpeg.indexOf(char(fill), at); at >= 0 && at + 1 < jpeg.size();
         at = jpeg.indexOf(char(fill), at + 1)) {
        const uchar marker = byteAt(at + 1);
        if (IsWithinScan(marker))
            continue;
        if (IsBare(marker))
            return {marker, at, at + 2};
        if (at + 4 > jpeg.size())
            break;
        const qsizetype length = std::max(2, byteAt(at + 2) << 8 | byteAt(at + 3));
        return {marker, at, at + 2 + length};
    }
    return {none, jpeg.size(), jpeg.size()};
}

// The body of the frame's header; empty when there is none before the first scan.
QByteArray FrameOf(const QByteArray& jpeg, uchar& marker)
{
    for (Segment segment = NextSegment(jpeg, 0); segment.marker != none && segment.marker != scan;
         segment = NextSegment(jpeg, segment.next)) {
        if (!IsFrame(segment.marker))
            continue;
        marker = segment.marker;
        return jpeg.mid(segment.at + 4, segment.next - segment.at - 4);
    }
    return {};
}

// Number of 8x8 blocks of all colours, as the decoder allocates them.
qint64 BlocksOf(const QByteArray& frame)
{
    constexpr int headBytes = 6;
    constexpr int colourBytes = 3;
    if (frame.size() < headBytes)
        return 0;
    const qint64 height = qFromBigEndian<quint16>(frame.constData() + 1);
    const qint64 width = qFromBigEndian<quint16>(frame.constData() + 3);
    const int count = std::min<int>(uchar(frame[5]), int(frame.size() - headBytes) / colourBytes);
    qint64 maxAcross = 1;
    qint64 maxDown = 1;
    qint64 perUnit = 0;
    for (int i = 0; i < count; ++i) {
        const uchar factors = uchar(frame[headBytes + i * colourBytes + 1]);
        const qint64 across = factors >> 4;
        const qint64 down = factors & 0x0F;
        maxAcross = std::max(maxAcross, across);
        maxDown = std::max(maxDown, down);
        perUnit += across * down;
    }
    const auto units = [](qint64 pixels, qint64 most) {
        return (pixels + 8 * most - 1) / (8 * most);
    };
    return units(width, maxAcross) * units(height, maxDown) * perUnit;
}

qint64 BlocksOfJpeg(const QByteArray& jpeg)
{
    uchar marker = none;
    return BlocksOf(FrameOf(jpeg, marker));
}

} // namespace

QByteArray ReadJpegHead(QIODevice& file)
{
    QByteArray head = file.read(2);
    Choice choice;
    while (file.pos() < maxHeadBytes) {
        const uchar marker = ReadMarker(file);
        if (marker == none)
            break;
        const QByteArray name = QByteArray(1, char(fill)) + char(marker);
        if (IsBare(marker)) {
            head += name;
            continue;
        }
        const QByteArray length = file.read(2);
        const int bytes = length.size() < 2 ? 0 : qFromBigEndian<quint16>(length.constData());
        if (bytes < 2)
            break;
        const QByteArray body = file.read(bytes - 2);
        if (choice.IsWanted(marker, body))
            head += name + length + body;
        if (marker == scan)
            break;
    }
    return head;
}

void AppendJpegScans(QByteArray& jpeg, QIODevice& file)
{
    jpeg.reserve(jpeg.size() + std::max<qint64>(file.size() - file.pos(), 0));
    JpegScans scans(file);
    for (QByteArray more = scans.Next(); !more.isEmpty(); more = scans.Next())
        jpeg += more;
}

bool JpegNeedsWholePicture(const QByteArray& jpeg)
{
    uchar marker = none;
    const QByteArray frame = FrameOf(jpeg, marker);
    if (IsProgressiveFrame(marker))
        return true;
    Segment segment = NextSegment(jpeg, 0);
    while (segment.marker != none && segment.marker != scan)
        segment = NextSegment(jpeg, segment.next);
    const bool isComplete = frame.size() > 5 && segment.at + 4 < jpeg.size();
    return isComplete && uchar(jpeg[segment.at + 4]) < uchar(frame[5]);
}

qint64 JpegWholeBytes(const QByteArray& jpeg)
{
    return JpegNeedsWholePicture(jpeg) ? BlocksOfJpeg(jpeg) * bytesPerBlock : 0;
}

bool HasSensibleScans(const QByteArray& jpeg)
{
    const qint64 maxScans = maxBlockVisits / std::max<qint64>(BlocksOfJpeg(jpeg), 1);
    qint64 scans = 0;
    for (Segment segment = NextSegment(jpeg, 0); segment.marker != none && scans <= maxScans;
         segment = NextSegment(jpeg, segment.next))
        scans += segment.marker == scan;
    return scans <= maxScans;
}
