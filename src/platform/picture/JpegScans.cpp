// SPDX-License-Identifier: MIT
#include "platform/picture/JpegScans.h"

#include "platform/picture/JpegMarkers.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <utility>

using namespace JpegMarker;

namespace {

constexpr qint64 bytesPerRead = 64 * 1024;
constexpr qsizetype markerBytes = 2;
constexpr qsizetype lengthBytes = 2; // which count themselves

// Where the first marker is that begins something else than a scan's next bytes. A byte of 0xFF
// that is the last one may.
qsizetype NextMarker(QByteArrayView piece)
{
    qsizetype at = piece.indexOf(char(fill));
    while (at >= 0 && at + 1 < piece.size() && uchar(piece[at + 1]) != fill &&
           IsWithinScan(uchar(piece[at + 1])))
        at = piece.indexOf(char(fill), at + markerBytes);
    return at < 0 ? piece.size() : at;
}

} // namespace

QByteArray JpegScans::Next()
{
    QByteArray kept;
    while (kept.isEmpty() && !hasEnded_) {
        const QByteArray read = file_.read(bytesPerRead);
        kept.reserve(rest_.size() + read.size());
        Take(std::exchange(rest_, {}) + read, read.isEmpty(), kept);
        hasEnded_ = hasEnded_ || read.isEmpty();
    }
    return kept;
}

void JpegScans::Take(QByteArrayView piece, bool isLast, QByteArray& kept)
{
    while (!piece.isEmpty() && !hasEnded_) {
        const qsizetype ofSegment = std::min<qint64>(segment_, piece.size());
        if (!isLeftOut_)
            kept += piece.first(ofSegment);
        segment_ -= ofSegment;
        piece = piece.sliced(ofSegment);
        const qsizetype beforeMarker = NextMarker(piece);
        kept += piece.first(beforeMarker);
        piece = piece.sliced(beforeMarker);
        if (piece.size() < markerBytes + lengthBytes && !isLast) {
            rest_ = piece.toByteArray();
            return;
        }
        if (piece.size() >= markerBytes && uchar(piece[1]) == end) {
            kept += piece.first(markerBytes);
            hasEnded_ = true;
            return;
        }
        Begin(piece);
    }
}

// What begins with a marker; only the file's last bytes are too few for one with its length.
void JpegScans::Begin(QByteArrayView segment)
{
    const uchar marker = segment.size() < markerBytes ? uchar(fill) : uchar(segment[1]);
    isLeftOut_ = IsOfPrograms(marker);
    if (marker == fill)
        segment_ = 1;
    else if (IsWithinScan(marker) || IsBare(marker) || segment.size() < markerBytes + lengthBytes)
        segment_ = markerBytes;
    else
        segment_ =
            markerBytes +
            std::max<qint64>(lengthBytes, qFromBigEndian<quint16>(segment.data() + markerBytes));
}

qint64 JpegDevice::readData(char* data, qint64 maxBytes)
{
    qint64 total = 0;
    while (total < maxBytes) {
        if (given_ == ready_.size()) {
            ready_ = scans_.Next();
            given_ = 0;
            if (ready_.isEmpty())
                break;
        }
        const qsizetype taken = std::min<qint64>(maxBytes - total, ready_.size() - given_);
        std::memcpy(data + total, ready_.constData() + given_, std::size_t(taken));
        given_ += taken;
        total += taken;
    }
    return total > 0 || maxBytes == 0 ? total : -1;
}
