// SPDX-License-Identifier: MIT
#include "PngBytes.h"

#include <QDataStream>
#include <QIODevice>

#include <zlib.h>

QByteArray PngChunk(const QByteArray& type, const QByteArray& data, std::optional<quint32> claimed)
{
    const QByteArray body = type + data;
    const auto* bytes = reinterpret_cast<const Bytef*>(body.constData());
    QByteArray chunk;
    QDataStream stream(&chunk, QIODevice::WriteOnly);
    stream << claimed.value_or(quint32(data.size()));
    stream.writeRawData(body.constData(), int(body.size()));
    stream << quint32(crc32(0, bytes, uInt(body.size())));
    return chunk;
}

qsizetype PngChunkAt(const QByteArray& png, const char* type)
{
    const qsizetype at = png.indexOf(type);
    return at < 4 ? -1 : at - 4;
}

QByteArray DeflatedText(const QByteArray& text)
{
    constexpr int lengthBytes = 4; // which Qt writes before the deflated data
    return QByteArray("key\0\0", 5) + qCompress(text, 9).mid(lengthBytes);
}
