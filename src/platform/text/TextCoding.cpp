// SPDX-License-Identifier: MIT
#include "platform/text/TextCoding.h"

#include <QStringDecoder>

#include <array>

namespace {

// What Windows-1252 has where Latin-1 has control characters, from 0x80; see unicode.org,
// MAPPINGS/VENDORS/MICSFT/WINDOWS/CP1252.TXT.
constexpr std::array<char16_t, 32> windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

QString DecodeUtf8OrWindows1252(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless |
                                                       QStringConverter::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    if (!decoder.hasError())
        return text;
    text = QString::fromLatin1(bytes);
    for (QChar& character : text) {
        if (character.unicode() >= 0x80 && character.unicode() < 0xA0)
            character = QChar(windows1252[character.unicode() - 0x80U]);
    }
    return text;
}
