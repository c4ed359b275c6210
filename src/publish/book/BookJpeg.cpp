// SPDX-License-Identifier: MIT
#include "publish/book/BookJpeg.h"

#include "platform/picture/JpegFile.h"
#include "platform/picture/JpegMarkers.h"
#include "platform/picture/JpegScans.h"
#include "platform/picture/PictureFile.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QtEndian>

#include <array>
#include <map>

using namespace JpegMarker;

namespace {

constexpr uchar noFrame = 0;
constexpr uchar firstFrame = 0xC0;
constexpr uchar lastPassedFrame = 0xC2; // baseline, extended, progressive
constexpr uchar jpegTables = 0xC4;      // no frame, though in their range
constexpr uchar arithmeticTables = 0xCC;
constexpr uchar lastFrame = 0xCF;
constexpr int noTransform = -1;

constexpr QByteArrayView jfifName("JFIF\0", 5);
constexpr QByteArrayView adobeName("Adobe", 5);
constexpr QByteArrayView profileName("ICC_PROFILE\0", 12);

bool IsJpegFrame(uchar marker)
{
    return marker >= firstFrame && marker <= lastFrame && marker != jpegTables && marker != 0xC8 &&
           marker != arithmeticTables;
}

// What stands before the first scan's data, without what is left out.
struct PassedHead
{
    QByteArray bytes;
    QByteArray frame; // body of its header
    uchar frameMarker = noFrame;
    int frames = 0;
    bool hasJfif = false;
    int adobeTransform = noTransform;
    std::map<int, QByteArray> profileParts;
    int profilePartCount = 0;
    bool hasScan = false;
};

void AddSegment(QByteArray& bytes, uchar marker, QByteArrayView body)
{
    std::array<uchar, 4> name{fill, marker, 0, 0};
    qToBigEndian(quint16(body.size() + 2), name.data() + 2);
    bytes.append(reinterpret_cast<const char*>(name.data()), qsizetype(name.size()));
    bytes.append(body);
}

// Without the small picture that may follow.
void TakeJfif(PassedHead& head, const QByteArray& body)
{
    constexpr qsizetype bareBytes = 14; // the last two are the small picture's size
    if (head.hasJfif || !body.startsWith(jfifName) || body.size() < bareBytes)
        return;
    head.hasJfif = true;
    AddSegment(head.bytes, programFirst, body.first(bareBytes - 2) + QByteArray(2, '\0'));
}

void TakeAdobe(PassedHead& head, const QByteArray& body)
{
    constexpr qsizetype transformAt = 11;
    if (head.adobeTransform != noTransform || !body.startsWith(adobeName) ||
        body.size() <= transformAt)
        return;
    head.adobeTransform = uchar(body[transformAt]);
    AddSegment(head.bytes, colours, body.first(transformAt + 1));
}

// ICC.1:2022, annex B.4: each part has its number, from 1 on, and the number of all.
void TakeProfilePart(PassedHead& head, const QByteArray& body)
{
    const qsizetype dataAt = profileName.size() + 2;
    if (!body.startsWith(profileName) || body.size() <= dataAt)
        return;
    head.profileParts.emplace(uchar(body[dataAt - 2]), body.sliced(dataAt));
    head.profilePartCount = uchar(body[dataAt - 1]);
    AddSegment(head.bytes, profile, body);
}

void TakeSegment(PassedHead& head, uchar marker, const QByteArray& body)
{
    if (marker == programFirst)
        return TakeJfif(head, body);
    if (marker == colours)
        return TakeAdobe(head, body);
    if (marker == profile)
        return TakeProfilePart(head, body);
    if (IsOfPrograms(marker))
        return;
    if (IsJpegFrame(marker)) {
        head.frame = body;
        head.frameMarker = marker;
        ++head.frames;
    }
    AddSegment(head.bytes, marker, body);
    head.hasScan = marker == scan;
}

// Of a head as ReadJpegHead returns it.
PassedHead PassHead(const QByteArray& read)
{
    PassedHead head;
    head.bytes = read.first(std::min<qsizetype>(read.size(), 2));
    for (qsizetype at = 2; at + 4 <= read.size() && !head.hasScan;) {
        const uchar marker = uchar(read[at + 1]);
        if (IsBare(marker)) {
            at += 2;
            continue;
        }
        const int length = qFromBigEndian<quint16>(read.constData() + at + 2);
        TakeSegment(head, marker, read.sliced(at + 4, length - 2));
        at += 2 + length;
    }
    return head;
}

// A decoder of pictures goes by JFIF first, then by Adobe's mark, then by the components' names;
// one of books by Adobe's mark alone. Passed is what both take for YCbCr.
bool IsPassedColour(const PassedHead& head, int components)
{
    constexpr qsizetype firstNameAt = 6;
    if (components == 1)
        return head.adobeTransform <= 0;
    const bool isNamedRgb = head.frame[firstNameAt] == 'R';
    const bool isUnmarked = head.adobeTransform == noTransform && (head.hasJfif || !isNamedRgb);
    return components == 3 && (isUnmarked || head.adobeTransform == 1);
}

QByteArray ProfileOf(const PassedHead& head, int components)
{
    if (components != 3 || head.profileParts.empty() ||
        int(head.profileParts.size()) != head.profilePartCount)
        return {};
    QByteArray whole;
    for (const auto& part : head.profileParts)
        whole += part.second;
    return QColorSpace::fromIccProfile(whole).isValid() ? whole : QByteArray();
}

// As the reader of pictures sees it, so that both turn alike.
QImageIOHandler::Transformations TurnOf(const QByteArray& read)
{
    QBuffer buffer;
    buffer.setData(read);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader;
    reader.setAutoDetectImageFormat(false);
    reader.setFormat("jpeg");
    reader.setDevice(&buffer);
    return reader.transformation();
}

std::optional<JpegFacts> FactsOf(const PassedHead& head, const QByteArray& read)
{
    constexpr qsizetype frameBytes = 6; // before the components
    constexpr qsizetype componentBytes = 3;
    constexpr int passedBits = 8;
    const bool isPassedKind =
        head.hasScan && head.frames == 1 && head.frameMarker <= lastPassedFrame &&
        head.frame.size() >= frameBytes + componentBytes && head.frame[0] == passedBits;
    if (!isPassedKind)
        return std::nullopt;
    const int components = uchar(head.frame[frameBytes - 1]);
    if (!IsPassedColour(head, components))
        return std::nullopt;
    const QSize size(qFromBigEndian<quint16>(head.frame.constData() + 3),
                     qFromBigEndian<quint16>(head.frame.constData() + 1));
    return JpegFacts{size, components, TurnOf(read), ProfileOf(head, components)};
}

} // namespace

std::optional<JpegFacts> ReadJpegFacts(const QString& path)
{
    QFile file;
    if (!OpenPictureFile(file, path) || PictureFormatOf(file) != "jpeg")
        return std::nullopt;
    const QByteArray read = ReadJpegHead(file);
    return FactsOf(PassHead(read), read);
}

bool PassJpeg(const QString& path, const JpegFacts& facts,
              const std::function<void(QByteArrayView)>& sink)
{
    QFile file;
    if (!OpenPictureFile(file, path) || PictureFormatOf(file) != "jpeg")
        return false;
    QByteArray read = ReadJpegHead(file);
    const PassedHead head = PassHead(read);
    if (FactsOf(head, read) != facts)
        return false;
    sink(head.bytes);
    const bool isWhole = JpegNeedsWholePicture(read);
    JpegScans scans(file);
    QByteArray last;
    for (QByteArray more = scans.Next(); !more.isEmpty(); more = scans.Next()) {
        sink(more);
        if (isWhole)
            read += more; // only these may have more scans than viewers can draw in time
        last = last.right(1) + more.right(2);
    }
    return last.endsWith(QByteArrayView("\xFF\xD9", 2)) && (!isWhole || HasSensibleScans(read));
}
