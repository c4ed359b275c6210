// SPDX-License-Identifier: MIT
#include "platform/metadata/EntryText.h"

#include "platform/text/TextCoding.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace {

constexpr qsizetype commentHead = 8; // bytes

// The bytes in front of the first zero: what follows is the rest of a fixed field.
QByteArrayView BeforeZero(QByteArrayView bytes)
{
    const qsizetype zero = bytes.indexOf('\0');
    return zero < 0 ? bytes : bytes.first(zero);
}

QString Utf16Text(QByteArrayView bytes, bool isBigEndian)
{
    QStringDecoder decoder(isBigEndian ? QStringConverter::Utf16BE : QStringConverter::Utf16LE);
    QString text = decoder.decode(bytes);
    const qsizetype zero = text.indexOf(QChar());
    if (zero >= 0)
        text.truncate(zero);
    return text;
}

// Of UTF-16 without a mark: the zero half of a Latin letter says which half comes first. Writers
// do not keep to the order of the file.
bool IsBigEndian(QByteArrayView bytes, bool isFileBigEndian)
{
    if (bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE"))
        return bytes.front() == '\xFE';
    int first = 0;
    int second = 0;
    for (qsizetype i = 0; i + 1 < bytes.size(); i += 2) {
        first += bytes[i] == 0 ? 1 : 0;
        second += bytes[i + 1] == 0 ? 1 : 0;
    }
    return first == second ? isFileBigEndian : first > second;
}

// The two-byte codes of JIS X 0208, with or without the sequences that tell where they begin.
// Empty where the platform does not know them.
QString JapaneseText(QByteArrayView bytes)
{
    QStringDecoder decoder("ISO-2022-JP");
    if (!decoder.isValid())
        return {};
    const bool hasSequences = bytes.contains('\x1B');
    QString text =
        decoder.decode(hasSequences ? bytes.toByteArray() : "\x1B$B" + bytes.toByteArray());
    return decoder.hasError() ? QString() : text;
}

QString CommentText(QByteArrayView bytes, bool isFileBigEndian)
{
    const QByteArrayView head = bytes.first(std::min(commentHead, bytes.size()));
    const QByteArrayView text = bytes.sliced(head.size());
    if (head.startsWith("UNICODE"))
        return Utf16Text(text, IsBigEndian(text, isFileBigEndian));
    if (head.startsWith("JIS"))
        return JapaneseText(BeforeZero(text));
    const bool isHead = head.startsWith("ASCII") || head.isEmpty() || head.front() == '\0' ||
                        head.trimmed().isEmpty();
    return DecodeUtf8OrWindows1252(BeforeZero(isHead ? text : bytes));
}

QString Decoded(MetadataStream::Coding coding, QByteArrayView bytes)
{
    switch (coding) {
    case MetadataStream::Utf8:
        return QString::fromUtf8(bytes);
    case MetadataStream::Utf16:
        return Utf16Text(bytes, false);
    case MetadataStream::CommentLittleEndian:
    case MetadataStream::CommentBigEndian:
        return CommentText(bytes, coding == MetadataStream::CommentBigEndian);
    case MetadataStream::Bytes:
        break;
    }
    return DecodeUtf8OrWindows1252(BeforeZero(bytes));
}

} // namespace

QString EntryText(MetadataStream::Coding coding, QByteArrayView bytes)
{
    QString text = Decoded(coding, bytes);
    text.remove(QChar());
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    return text.trimmed();
}

bool IsMachineCaption(const QString& caption)
{
    static constexpr std::array whole{
        u"OLYMPUS DIGITAL CAMERA", u"SONY DSC",       u"KONICA MINOLTA DIGITAL CAMERA",
        u"MINOLTA DIGITAL CAMERA", u"binary comment", u"Created with GIMP"};
    static constexpr std::array beginnings{u"CREATOR: gd-jpeg", u"File written by Adobe Photoshop",
                                           u"cmp3."};
    const auto isWhole = [&caption](const char16_t* text) {
        return caption.compare(QStringView(text), Qt::CaseInsensitive) == 0;
    };
    const auto isBeginning = [&caption](const char16_t* text) {
        return caption.startsWith(QStringView(text));
    };
    return std::any_of(whole.begin(), whole.end(), isWhole) ||
           std::any_of(beginnings.begin(), beginnings.end(), isBeginning);
}
