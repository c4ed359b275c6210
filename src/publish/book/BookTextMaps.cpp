// SPDX-License-Identifier: MIT
#include "publish/book/BookTextMaps.h"

#include <qpdf/Buffer.hh>

#include <QByteArray>
#include <QString>

namespace {

constexpr int digitsOfUnit = 4; // hexadecimal, of a UTF-16 code unit

bool IsForm(QChar letter)
{
    return (letter >= QChar(0xfb00) && letter <= QChar(0xfdff)) ||
           (letter >= QChar(0xfe70) && letter <= QChar(0xfefc));
}

QByteArray MendedText(const QByteArray& digits)
{
    if (digits.size() != digitsOfUnit)
        return digits;
    const QChar letter(ushort(digits.toUShort(nullptr, 16)));
    const QString text = letter == u'\t' ? QStringLiteral(" ")
                         : IsForm(letter)
                             ? QString(letter).normalized(QString::NormalizationForm_KC)
                             : QString(letter);
    QByteArray mended;
    for (const QChar unit : text)
        mended += QByteArray::number(unit.unicode(), 16).rightJustified(digitsOfUnit, '0');
    return mended;
}

// The texts of a range of glyphs stand in square brackets, each in angle brackets.
QByteArray MendedMap(const QByteArray& map)
{
    QByteArray mended;
    bool isList = false;
    for (qsizetype at = 0; at < map.size(); ++at) {
        mended += map[at];
        isList = map[at] == '[' || (isList && map[at] != ']');
        const qsizetype end = map[at] == '<' && isList ? map.indexOf('>', at) : -1;
        if (end < 0)
            continue;
        mended += MendedText(map.sliced(at + 1, end - at - 1));
        at = end - 1;
    }
    return mended;
}

} // namespace

void MendTextMaps(QPDF& pdf)
{
    for (QPDFObjectHandle& object : pdf.getAllObjects()) {
        if (!object.isDictionary() || !object.getKey("/ToUnicode").isStream())
            continue;
        QPDFObjectHandle map = object.getKey("/ToUnicode");
        const auto data = map.getStreamData();
        const QByteArray text(reinterpret_cast<const char*>(data->getBuffer()),
                              qsizetype(data->getSize()));
        map.replaceStreamData(MendedMap(text).toStdString(), QPDFObjectHandle::newNull(),
                              QPDFObjectHandle::newNull());
    }
}
