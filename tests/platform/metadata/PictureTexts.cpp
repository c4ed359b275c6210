// SPDX-License-Identifier: MIT
#include "PictureTexts.h"

#include "support/TestFiles.h"

#include <QColor>
#include <QSize>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int userComment = 0x9286;
constexpr int dateTimeOriginal = 0x9003;

template<typename Number>
QByteArray Little(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray Big(quint16 number)
{
    QByteArray bytes(2, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray Segment(int marker, const QByteArray& bytes)
{
    return bytes.isEmpty()
               ? bytes
               : '\xFF' + QByteArray(1, char(marker)) + Big(quint16(bytes.size() + 2)) + bytes;
}

int TypeOf(int tag)
{
    return tag == userComment ? 7 : tag >= 0x9C9B && tag <= 0x9C9F ? 1 : 2;
}

bool IsOfPhoto(int tag)
{
    return tag >= dateTimeOriginal && tag <= userComment;
}

// A directory whose longer values follow it.
QByteArray Directory(QList<QPair<int, QByteArray>> entries, int start, int subDirectoryTag)
{
    std::sort(entries.begin(), entries.end());
    const int count = int(entries.size()) + (subDirectoryTag ? 1 : 0);
    QByteArray head = Little(quint16(count));
    QByteArray values;
    const int valuesStart = start + 2 + 12 * count + 4;
    for (const auto& [tag, bytes] : entries) {
        head += Little(quint16(tag)) + Little(quint16(TypeOf(tag))) + Little(quint32(bytes.size()));
        if (bytes.size() <= 4) {
            head += bytes.leftJustified(4, '\0');
            continue;
        }
        head += Little(quint32(valuesStart + values.size()));
        values += bytes;
    }
    if (subDirectoryTag)
        head += Little(quint16(subDirectoryTag)) + Little(quint16(4)) + Little(quint32(1)) +
                Little(quint32(valuesStart + values.size()));
    return head + Little(quint32(0)) + values;
}

QByteArray Exif(const QList<QPair<int, QByteArray>>& entries)
{
    QList<QPair<int, QByteArray>> image;
    QList<QPair<int, QByteArray>> photo;
    for (const auto& entry : entries)
        (IsOfPhoto(entry.first) ? photo : image) += entry;
    const QByteArray first = Directory(image, 8, photo.isEmpty() ? 0 : 0x8769);
    QByteArray bytes = QByteArray("II*\0\x08\0\0\0", 8) + first;
    if (!photo.isEmpty())
        bytes += Directory(photo, int(bytes.size()), 0);
    return QByteArray("Exif\0\0", 6) + bytes;
}

QByteArray Iptc(const QList<QPair<int, QByteArray>>& sets)
{
    QByteArray data;
    for (const auto& [number, bytes] : sets)
        data += "\x1C\x02" + QByteArray(1, char(number)) + Big(quint16(bytes.size())) + bytes;
    if (data.size() % 2 == 1)
        data += '\0';
    return QByteArray("Photoshop 3.0\0"
                      "8BIM\x04\x04\0\0\0\0",
                      24) +
           Big(quint16(data.size())) + data;
}

} // namespace

void WritePicture(const QString& path, const PictureTexts& texts)
{
    PaintPicture(path, {8, 6}, Qt::darkCyan);
    QByteArray segments;
    if (!texts.exif.isEmpty())
        segments += Segment(0xE1, Exif(texts.exif));
    if (!texts.xmp.isEmpty())
        segments +=
            Segment(0xE1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + XmpPacket(texts.xmp));
    if (!texts.iptc.isEmpty())
        segments += Segment(0xED, Iptc(texts.iptc));
    segments += Segment(0xFE, texts.comment);
    WriteFile(path, ReadFile(path).insert(2, segments));
}

QByteArray XmpPacket(const QByteArray& elements)
{
    return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
           "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
           "rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
           "xmlns:photoshop=\"http://ns.adobe.com/photoshop/1.0/\" "
           "xmlns:digiKam=\"http://www.digikam.org/ns/1.0/\">" +
           elements + "</rdf:Description></rdf:RDF></x:xmpmeta>";
}

QByteArray XmpCaption(const QByteArray& text, const QByteArray& language)
{
    return "<dc:description><rdf:Alt><rdf:li xml:lang=\"" + language + "\">" + text +
           "</rdf:li></rdf:Alt></dc:description>";
}

QByteArray XmpKeywords(const QList<QByteArray>& keywords)
{
    return "<dc:subject><rdf:Bag><rdf:li>" + keywords.join("</rdf:li><rdf:li>") +
           "</rdf:li></rdf:Bag></dc:subject>";
}
