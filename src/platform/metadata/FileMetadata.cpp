// SPDX-License-Identifier: MIT
#include "platform/metadata/FileMetadata.h"

#include "platform/metadata/EntryText.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>

using namespace MetadataStream;

namespace {

constexpr int firstYear = 1800; // there are no earlier photographs
constexpr int lastYear = 2999;

struct Entry
{
    Place place;
    QString field;
    QString text;
};

constexpr std::array captionFields{u"Xmp.dc.description",
                                   u"Xmp.exif.UserComment",
                                   u"Xmp.tiff.ImageDescription",
                                   u"Xmp.acdsee.notes",
                                   u"Iptc.Application2.Caption",
                                   u"Exif.Photo.UserComment",
                                   u"Exif.Image.ImageDescription",
                                   u"Exif.Image.XPComment",
                                   u"JPEG comment"};
constexpr std::array keywordFields{u"Xmp.dc.subject", u"Xmp.lr.hierarchicalSubject",
                                   u"Xmp.digiKam.TagsList", u"Iptc.Application2.Keywords",
                                   u"Exif.Image.XPKeywords"};
// The day on which it was taken, before those on which it was digitised or changed.
constexpr std::array dateFields{u"Exif.Photo.DateTimeOriginal",  u"Xmp.exif.DateTimeOriginal",
                                u"Exif.Photo.DateTimeDigitized", u"Xmp.photoshop.DateCreated",
                                u"Xmp.xmp.CreateDate",           u"Iptc.Application2.DateCreated",
                                u"Exif.Image.DateTime"};

template<typename Fields>
bool IsAmong(const Fields& fields, const QString& field)
{
    return std::any_of(fields.begin(), fields.end(),
                       [&field](const char16_t* each) { return field == each; });
}

// Without the language of a text.
QString NameOf(const QString& field)
{
    return field.section(u'/', 0, 0);
}

QString ShownField(const Entry& entry)
{
    return entry.place == InPicture ? entry.field : entry.field + QStringLiteral(" (.xmp)");
}

// "Places|Lake" and "Places/Lake" name places in a tree of keywords.
QString LeafOf(const QString& field, const QString& keyword)
{
    if (field == QLatin1String("Xmp.lr.hierarchicalSubject"))
        return keyword.section(u'|', -1).trimmed();
    if (field == QLatin1String("Xmp.digiKam.TagsList"))
        return keyword.section(u'/', -1).trimmed();
    return keyword;
}

void AddKeywords(const Entry& entry, QSet<QString>& seen, FileMetadata& metadata)
{
    const bool isJoined = entry.field == QLatin1String("Exif.Image.XPKeywords");
    const QStringList keywords =
        isJoined ? entry.text.split(u';', Qt::SkipEmptyParts) : QStringList(entry.text);
    for (const QString& each : keywords) {
        const QString keyword = LeafOf(entry.field, each.trimmed());
        if (keyword.isEmpty() || seen.contains(keyword.toCaseFolded()))
            continue;
        seen.insert(keyword.toCaseFolded());
        metadata.keywords.push_back({keyword, ShownField(entry)});
    }
}

std::vector<Entry> TakeEntries(FrameContents& contents, FileMetadata& metadata)
{
    const QString own = QStringLiteral("Xmp.%1.").arg(QLatin1String(ownPrefix));
    std::vector<Entry> entries;
    QString captions[3];
    std::optional<Place> ownPlace;
    while (!contents.IsAtEnd()) {
        const auto place = Place(contents.Number());
        const QString field = contents.Text();
        const auto coding = Coding(contents.Number());
        const QByteArrayView bytes = contents.Bytes();
        if (field.startsWith(own)) {
            // Of two sidecars, the picture's own counts; it comes first.
            if (ownPlace.value_or(place) == place)
                metadata.ownFields.insert(field.sliced(own.size()), QString::fromUtf8(bytes));
            ownPlace = ownPlace.value_or(place);
            continue;
        }
        if (field == QLatin1String("Xmp.dc.description") && place <= InSharedSidecar)
            captions[place] = QString::fromUtf8(bytes);
        entries.push_back({place, field, EntryText(coding, bytes)});
    }
    if (ownPlace && *ownPlace <= InSharedSidecar)
        metadata.sidecarCaption = captions[*ownPlace];
    return entries;
}

FileMetadata::State StateOf(quint32 status)
{
    using State = FileMetadata::State;
    switch (status) {
    case Done:
        return State::Read;
    case NotThere:
        return State::NotThere;
    case OtherFormat:
        return State::OtherFormat;
    default:
        return State::Damaged;
    }
}

void TakeDates(const std::vector<Entry>& entries, FileMetadata& metadata)
{
    for (const char16_t* field : dateFields) {
        for (const Entry& entry : entries) {
            const TakenDate date = entry.field == field ? DateFrom(entry.text) : TakenDate{};
            if (date.year != 0)
                metadata.dates.push_back({date, ShownField(entry)});
        }
    }
    for (const Entry& entry : entries) {
        if (entry.field != QLatin1String(fileTimeField))
            continue;
        const QDate day = QDateTime::fromSecsSinceEpoch(entry.text.toLongLong()).date();
        metadata.dates.push_back({{day.year(), day.month(), day.day()}, entry.field});
    }
}

} // namespace

FileMetadata MetadataFrom(std::optional<QByteArrayView> contents)
{
    FileMetadata metadata;
    if (!contents)
        return metadata;
    FrameContents frame(*contents);
    metadata.state = StateOf(frame.Number());
    const std::vector<Entry> entries = TakeEntries(frame, metadata);
    QSet<QString> seen;
    // Entries come in the order in which captions and keywords count.
    for (const Entry& entry : entries) {
        if (entry.text.isEmpty())
            continue;
        if (IsAmong(keywordFields, entry.field))
            AddKeywords(entry, seen, metadata);
        else if (IsAmong(captionFields, NameOf(entry.field)) && !IsMachineCaption(entry.text))
            metadata.captions.push_back({entry.text, ShownField(entry)});
    }
    TakeDates(entries, metadata);
    return metadata;
}

TakenDate DateFrom(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(\\d{4})(?:[:\\-/.]?(\\d{2})(?:[:\\-/.]?(\\d{2}))?)?(?!\\d)"));
    const QRegularExpressionMatch match = pattern.match(text);
    const int year = match.captured(1).toInt();
    if (year < firstYear || year > lastYear)
        return {};
    const int month = match.captured(2).toInt();
    if (month < 1 || month > 12)
        return {year, 0, 0};
    const int day = match.captured(3).toInt();
    return {year, month, QDate::isValid(year, month, day) ? day : 0};
}
