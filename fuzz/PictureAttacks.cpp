// SPDX-License-Identifier: MIT
#include "fuzz/PictureAttacks.h"

#include "fuzz/Trials.h"
#include "tests/platform/picture/PngBytes.h"

#include <QList>
#include <QtEndian>

namespace {

constexpr int mebibyte = 1 << 20;

// Sizes, counts and lengths at which something changes, or nothing fits any more.
quint32 Claim(Trials& trials)
{
    constexpr quint32 claims[] = {0,          1,          2,          255,       256,
                                  4095,       10000,      0x7FFF,     0xFFFF,    0x10000,
                                  20000,      0xFFFFFF,   1 << 28,    1 << 30,   0x7FFFFFF0,
                                  0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF};
    return trials.OneIn(4) ? quint32(trials.Random()()) : trials.AnyOf(claims);
}

template<typename Number>
void PutLittle(QByteArray& bytes, qsizetype at, Number number)
{
    if (at >= 0 && at + qsizetype(sizeof(Number)) <= bytes.size())
        qToLittleEndian(number, bytes.data() + at);
}

template<typename Number>
void PutBig(QByteArray& bytes, qsizetype at, Number number)
{
    if (at >= 0 && at + qsizetype(sizeof(Number)) <= bytes.size())
        qToBigEndian(number, bytes.data() + at);
}

// What a deflated chunk may hold: little, or a thousand times what it takes, which is as much as
// the decoder takes of one.
QByteArray Deflated(Trials& trials)
{
    static const QByteArray bomb = DeflatedText(QByteArray(7 * mebibyte, 'x'));
    if (trials.OneIn(3))
        return bomb;
    QByteArray profile(132 + trials.Below(400), 'p');
    PutBig(profile, 0, Claim(trials));
    return DeflatedText(profile);
}

QByteArray AnyPngChunk(Trials& trials)
{
    constexpr const char* types[] = {"zTXt", "iTXt", "tEXt", "sPLT", "iCCP", "PLTE", "tRNS", "gAMA",
                                     "cHRM", "sRGB", "sBIT", "bKGD", "hIST", "pHYs", "eXIf", "tIME",
                                     "abCd", "ABCD", "IHDR", "IDAT", "IEND", "acTL", "fdAT"};
    const QByteArray type = trials.AnyOf(types);
    QByteArray data = trials.OneIn(2) ? Deflated(trials) : QByteArray(trials.Below(900), '\3');
    if (type == "PLTE" && trials.OneIn(2))
        data = QByteArray(3 * (1 + trials.Below(256)), '\7');
    const bool lies = trials.OneIn(3);
    return lies ? PngChunk(type, data, Claim(trials)) : PngChunk(type, data);
}

void DamagePng(QByteArray& bytes, Trials& trials)
{
    constexpr int headerBytes = 33; // signature and first chunk
    if (trials.OneIn(3)) {
        QByteArray header = bytes.mid(16, 13);
        PutBig(header, 0, Claim(trials) & 0x7FFFF);
        PutBig(header, 4, Claim(trials) & 0xFFFF);
        if (trials.OneIn(2))
            header[9] = char(trials.Below(7));
        if (trials.OneIn(3))
            header[12] = '\1';
        bytes.replace(8, 25, PngChunk("IHDR", header));
    }
    const qsizetype palette = PngChunkAt(bytes, "PLTE");
    if (palette >= 0 && trials.OneIn(2)) {
        const qsizetype whole = 12 + qFromBigEndian<quint32>(bytes.constData() + palette);
        const int colours = 1 + trials.Below(4);
        bytes.replace(palette, whole, PngChunk("PLTE", QByteArray(3 * colours, '\x50')));
    }
    constexpr const char* places[] = {"PLTE", "IDAT", "IEND"};
    const qsizetype at = PngChunkAt(bytes, trials.AnyOf(places));
    bytes.insert(qMax<qsizetype>(at, headerBytes),
                 AnyPngChunk(trials).repeated(trials.OneIn(4) ? trials.Below(200) : 1));
}

QByteArray AnyJpegSegment(Trials& trials)
{
    constexpr const char* beginnings[] = {"Exif", "ICC_PROFILE", "JFIF", "Adobe",
                                          "http://ns.adobe"};
    constexpr uchar markers[] = {0xE0, 0xE1, 0xE2, 0xE5, 0xED, 0xEE, 0xFE, 0xDB, 0xC4, 0xDD, 0xDA};
    QByteArray body = trials.AnyOf(beginnings) + QByteArray(1, '\0');
    body += QByteArray(trials.OneIn(3) ? 65000 : trials.Below(300), char(trials.Below(3)));
    QByteArray segment("\xFF?\0\0", 4);
    segment[1] = char(trials.AnyOf(markers));
    PutBig(segment, 2, quint16(trials.OneIn(4) ? Claim(trials) : quint32(body.size() + 2)));
    return segment + body;
}

void DamageJpeg(QByteArray& bytes, Trials& trials)
{
    for (const char* frame : {"\xFF\xC0", "\xFF\xC2"}) {
        const qsizetype at = bytes.indexOf(frame);
        if (at < 0 || !trials.OneIn(2))
            continue;
        PutBig(bytes, at + 5, quint16(Claim(trials)));
        PutBig(bytes, at + 7, quint16(Claim(trials)));
        if (trials.OneIn(4) && at + 11 < bytes.size())
            bytes[at + 11] = char(trials.Random()()); // how the first colour is sampled
    }
    const qsizetype scan = bytes.lastIndexOf("\xFF\xDA");
    if (scan > 0 && trials.OneIn(3))
        bytes.insert(scan, bytes.mid(scan, 10 + trials.Below(40)).repeated(trials.Below(3000)));
    const qsizetype places[] = {2, scan, bytes.size() - 2};
    bytes.insert(qMax<qsizetype>(trials.AnyOf(places), 2),
                 AnyJpegSegment(trials).repeated(trials.OneIn(4) ? trials.Below(150) : 1));
}

void DamageBitmap(QByteArray& bytes, Trials& trials)
{
    constexpr int headerBytes = 54;
    if (trials.OneIn(3)) {
        PutLittle(bytes, 18, qint32(Claim(trials)) % 40000);
        PutLittle(bytes, 22, qint32(Claim(trials)) % 40000);
    }
    if (trials.OneIn(4))
        PutLittle(bytes, 30, quint32(trials.Below(5))); // how the pixels are packed
    if (trials.OneIn(4))
        PutLittle(bytes, 10, Claim(trials)); // where they begin
    if (bytes.size() <= headerBytes + 4 || qFromLittleEndian<quint16>(bytes.constData() + 28) > 8)
        return;
    const int colours = trials.OneIn(4) ? int(Claim(trials) % 300) : 1 + trials.Below(4);
    PutLittle(bytes, 46, quint32(colours));
    if (trials.OneIn(2)) {
        const qsizetype pixels = qFromLittleEndian<quint32>(bytes.constData() + 10);
        const qsizetype kept = headerBytes + 4 * colours;
        if (kept < pixels && pixels < bytes.size()) {
            bytes.remove(kept, pixels - kept);
            PutLittle(bytes, 10, quint32(kept));
        }
    }
    const qsizetype from = headerBytes + trials.Below(bytes.size() - headerBytes);
    bytes.replace(from, bytes.size() - from,
                  QByteArray(bytes.size() - from, char(trials.Random()())));
}

void DamageTiff(QByteArray& bytes, Trials& trials)
{
    if (bytes.size() < 8 || bytes[0] != 'I')
        return;
    const qsizetype directory = qFromLittleEndian<quint32>(bytes.constData() + 4);
    if (directory + 2 > bytes.size())
        return;
    const int count = qFromLittleEndian<quint16>(bytes.constData() + directory);
    for (int i = trials.Below(4); i >= 0 && count > 0; --i) {
        constexpr quint16 tags[] = {256, 257, 258, 259, 262, 273, 277, 278, 279,   284,   317,  320,
                                    322, 323, 324, 325, 338, 339, 347, 700, 33723, 34377, 34675};
        const qsizetype at = directory + 2 + 12 * qsizetype(trials.Below(count));
        if (trials.OneIn(3))
            PutLittle(bytes, at, trials.AnyOf(tags));
        if (trials.OneIn(3))
            PutLittle(bytes, at + 2, quint16(1 + trials.Below(18)));
        if (trials.OneIn(2))
            PutLittle(bytes, at + 4, Claim(trials));
        if (trials.OneIn(2))
            PutLittle(bytes, at + 8, Claim(trials));
    }
}

void DamageWebp(QByteArray& bytes, Trials& trials)
{
    constexpr const char* types[] = {"VP8X", "ICCP", "EXIF", "XMP ",
                                     "ANIM", "ANMF", "ALPH", "VP8 "};
    if (trials.OneIn(3))
        PutLittle(bytes, 4, Claim(trials));
    if (trials.OneIn(3))
        PutLittle(bytes, 16, Claim(trials));
    QByteArray chunk = trials.AnyOf(types) + QByteArray(4, '\0');
    const QByteArray data(trials.OneIn(3) ? 100000 : 2 * trials.Below(60), char(trials.Below(256)));
    PutLittle(chunk, 4, trials.OneIn(3) ? Claim(trials) : quint32(data.size()));
    // A header of the extended kind, that a profile or pictures may come after.
    QByteArray extended("VP8X\x0A\0\0\0?\0\0\0?\0\0?\0\0", 18);
    extended[8] = char(trials.Random()());
    PutLittle(extended, 12, quint16(Claim(trials)));
    PutLittle(extended, 15, quint16(Claim(trials)));
    bytes.insert(qMin<qsizetype>(12, bytes.size()),
                 (trials.OneIn(2) ? extended : QByteArray()) +
                     (chunk + data).repeated(1 + trials.Below(20)));
}

void DamageGif(QByteArray& bytes, Trials& trials)
{
    if (trials.OneIn(2)) {
        PutLittle(bytes, 6, quint16(Claim(trials)));
        PutLittle(bytes, 8, quint16(Claim(trials)));
    }
    const qsizetype picture = bytes.indexOf('\x2C');
    if (picture < 0)
        return;
    const QByteArray frame = bytes.mid(picture).chopped(1);
    if (trials.OneIn(2)) {
        PutLittle(bytes, picture + 5, quint16(Claim(trials)));
        PutLittle(bytes, picture + 7, quint16(Claim(trials)));
    }
    const QByteArray comment = "!\xFE" + ("\xFF" + QByteArray(255, 'x')).repeated(20) + '\0';
    bytes.insert(bytes.size() - 1, frame.repeated(trials.Below(200)));
    bytes.insert(picture, comment.repeated(trials.Below(20)));
}

void DamagePnm(QByteArray& bytes, Trials& trials)
{
    const QByteArray comment = '#' + QByteArray(trials.OneIn(2) ? 100000 : 20, 'x') + '\n';
    const QByteArray blanks(trials.OneIn(2) ? 100000 : 20, ' ');
    QByteArray header = bytes.left(2) + '\n' + (trials.OneIn(2) ? comment : blanks);
    for (int i = 0; i < 3; ++i)
        header += QByteArray::number(trials.OneIn(3) ? Claim(trials) : 50U) + ' ';
    bytes.replace(0, qMin<qsizetype>(11, bytes.size()), header);
}

} // namespace

void DamageStructure(QByteArray& bytes, Trials& trials)
{
    struct Kind
    {
        QByteArrayView start;
        void (*damage)(QByteArray&, Trials&);
    };
    constexpr int signatureBytes = 2;
    const Kind kinds[] = {{"\x89P", DamagePng}, {"\xFF\xD8", DamageJpeg}, {"BM", DamageBitmap},
                          {"II", DamageTiff},   {"MM", DamageTiff},       {"RI", DamageWebp},
                          {"GI", DamageGif},    {"P5", DamagePnm},        {"P6", DamagePnm}};
    if (bytes.size() < 64)
        return;
    for (const Kind& kind : kinds) {
        if (bytes.left(signatureBytes) == kind.start)
            return kind.damage(bytes, trials);
    }
}
