// SPDX-License-Identifier: MIT
#include "platform/picture/PngDevice.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include <zlib.h>

namespace {

constexpr qint64 pngSignatureBytes = 8;
constexpr qint64 headBytes = 8; // a chunk's length and type
constexpr qint64 checksumBytes = 4;

// Real profiles hold some kilobytes, those of scanners up to two megabytes.
constexpr qint64 maxProfileBytes = 4 << 20;

// Pixels come in chunks of eight kilobytes and more; a file of millions of empty chunks would take
// minutes.
constexpr qint64 maxChunks = 1 << 20;

struct WantedChunk
{
    const char* type;
    qint64 maxBytes;
};

// Each occurs at most once, before the pixels.
constexpr std::array<WantedChunk, 10> wantedChunks{{
    {"IHDR", 13},
    {"PLTE", 768},
    {"tRNS", 256},
    {"gAMA", 4},
    {"cHRM", 32},
    {"sRGB", 1},
    {"sBIT", 4},
    {"pHYs", 9},
    {"eXIf", 1 << 16},
    {"iCCP", maxProfileBytes},
}};

// The length at the beginning of a profile. The chunk holds the profile's name, a byte and the
// deflated profile. The decoder allocates that length before it reads any further.
qint64 ProfileBytes(QByteArray& chunk)
{
    constexpr qint64 none = std::numeric_limits<qint64>::max();
    const qsizetype start = chunk.indexOf('\0') + 2;
    std::array<uchar, 4> length{};
    z_stream stream{};
    if (start < 2 || start >= chunk.size() || inflateInit(&stream) != Z_OK)
        return none;
    stream.next_in = reinterpret_cast<uchar*>(chunk.data() + start);
    stream.avail_in = uInt(chunk.size() - start);
    stream.next_out = length.data();
    stream.avail_out = uInt(length.size());
    inflate(&stream, Z_SYNC_FLUSH);
    inflateEnd(&stream);
    return stream.avail_out > 0 ? none : qint64(qFromBigEndian<quint32>(length.data()));
}

} // namespace

PngDevice::PngDevice(QIODevice& file)
    : file_(file), fileBytes_(file.size()), streamed_(pngSignatureBytes)
{
    open(ReadOnly);
}

qint64 PngDevice::readData(char* data, qint64 maxBytes)
{
    qint64 done = 0;
    while (done < maxBytes && (!ready_.isEmpty() || streamed_ > 0 || BeginNextChunk())) {
        const qint64 wanted = maxBytes - done;
        qint64 got = 0;
        if (!ready_.isEmpty()) {
            got = std::min<qint64>(wanted, ready_.size());
            std::memcpy(data + done, ready_.constData(), std::size_t(got));
            ready_.remove(0, got);
        } else {
            got = file_.read(data + done, std::min(wanted, streamed_));
            if (got <= 0) {
                ended_ = true;
                streamed_ = 0;
                break;
            }
            streamed_ -= got;
        }
        done += got;
    }
    return done > 0 || maxBytes == 0 ? done : -1;
}

// False when everything has been given.
bool PngDevice::BeginNextChunk()
{
    while (!ended_ && ++chunks_ <= maxChunks) {
        const QByteArray head = file_.read(headBytes);
        if (head.size() < headBytes || head.endsWith("IEND"))
            break;
        if (BeginChunk(head))
            return true;
    }
    if (ended_)
        return false;
    // Added even where the file has none, or a damaged one: its pixels may be complete.
    ready_ = QByteArray("\0\0\0\0IEND\xAE\x42\x60\x82", 12);
    ended_ = true;
    return true;
}

// False when this chunk is left out.
bool PngDevice::BeginChunk(const QByteArray& head)
{
    const qint64 length = qFromBigEndian<quint32>(head.constData());
    const QByteArray type = head.mid(4);
    // Pixels are streamed, so that the part of a truncated file that is there can be shown.
    if (type == "IDAT") {
        inPixels_ = true;
        ready_ = head;
        streamed_ = length + checksumBytes;
        return true;
    }
    if (length + checksumBytes > fileBytes_ - file_.pos()) {
        file_.seek(fileBytes_);
        return false;
    }
    if (!IsWanted(type, length)) {
        file_.seek(file_.pos() + length + checksumBytes);
        return false;
    }
    QByteArray chunk = file_.read(length + checksumBytes);
    if (type == "iCCP" && ProfileBytes(chunk) > maxProfileBytes)
        return false;
    ready_ = head + chunk;
    return true;
}

bool PngDevice::IsWanted(const QByteArray& type, qint64 length)
{
    const auto* wanted = std::ranges::find_if(
        wantedChunks, [&type](const WantedChunk& chunk) { return type == chunk.type; });
    if (wanted == wantedChunks.end() || length > wanted->maxBytes || inPixels_)
        return false;
    const auto row = std::size_t(wanted - wantedChunks.begin());
    const bool isFirst = !seen_[row];
    seen_.set(row);
    return isFirst;
}
