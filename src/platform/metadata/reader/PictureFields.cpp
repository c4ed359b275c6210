// SPDX-License-Identifier: GPL-2.0-or-later
#include "PictureFields.h"

#include "SidecarFiles.h"

#include <exiv2/exiv2.hpp>
#include <exiv2/webpimage.hpp>

#include <strings.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>
#include <vector>

using namespace MetadataStream;

namespace {

// Longest text that is taken: more than any that a person wrote.
constexpr std::size_t longestText = 256 * 1024; // bytes
constexpr std::size_t maxKeywords = 1000;       // of one field

// What is read of each kind, in the order in which it counts.
constexpr std::array xmpTexts{"Xmp.dc.description",
                              "Xmp.exif.UserComment",
                              "Xmp.tiff.ImageDescription",
                              "Xmp.acdsee.notes",
                              "Xmp.dc.subject",
                              "Xmp.lr.hierarchicalSubject",
                              "Xmp.digiKam.TagsList",
                              "Xmp.exif.DateTimeOriginal",
                              "Xmp.photoshop.DateCreated",
                              "Xmp.xmp.CreateDate"};
constexpr std::array iptcTexts{"Iptc.Application2.Caption", "Iptc.Application2.Keywords",
                               "Iptc.Application2.DateCreated"};
constexpr std::array exifTexts{"Exif.Photo.UserComment",      "Exif.Image.ImageDescription",
                               "Exif.Image.XPComment",        "Exif.Image.XPKeywords",
                               "Exif.Photo.DateTimeOriginal", "Exif.Photo.DateTimeDigitized",
                               "Exif.Image.DateTime"};

class EntryWriter
{
public:
    EntryWriter(const std::string& language, FrameWriter& stream)
        : language_(language), stream_(stream)
    {
    }

    const std::string& GetLanguage() const { return language_; }

    void Write(Place place, const std::string& field, Coding coding, std::string_view text)
    {
        if (text.empty() || text.size() > longestText)
            return;
        stream_.Number(place);
        stream_.Text(field);
        stream_.Number(coding);
        stream_.Text(text);
    }

private:
    const std::string& language_;
    FrameWriter& stream_;
};

// Of "fr", "fr-CA" is a kind; case does not count.
bool IsOfLanguage(const std::string& tag, const std::string& language)
{
    return tag.size() >= language.size() &&
           (tag.size() == language.size() || tag[language.size()] == '-') &&
           strncasecmp(tag.c_str(), language.c_str(), language.size()) == 0;
}

// The default one is written in any case: it tells whether another program has changed it.
void WriteLanguages(Place place, const std::string& key, const Exiv2::LangAltValue& texts,
                    EntryWriter& entries)
{
    const std::string usual = DefaultOf(texts);
    for (const auto& [tag, text] : texts.value_) {
        if (text != usual && IsOfLanguage(tag, entries.GetLanguage())) {
            entries.Write(place, key + "/" + entries.GetLanguage(), Utf8, text);
            break;
        }
    }
    entries.Write(place, key, Utf8, usual);
}

void WriteXmpField(Place place, const Exiv2::Xmpdatum& datum, EntryWriter& entries)
{
    if (const auto* texts = dynamic_cast<const Exiv2::LangAltValue*>(&datum.value())) {
        WriteLanguages(place, datum.key(), *texts, entries);
        return;
    }
    const auto count = std::min<std::size_t>(std::size_t(datum.count()), maxKeywords);
    const bool isList = dynamic_cast<const Exiv2::XmpArrayValue*>(&datum.value()) != nullptr;
    if (!isList) {
        entries.Write(place, datum.key(), Utf8, datum.toString());
        return;
    }
    for (std::size_t i = 0; i < count; ++i)
        entries.Write(place, datum.key(), Utf8, datum.toString(long(i)));
}

// The fields of those names that a file has, each in its name's place; null for one that it has
// not. One walk over all: to look a name up takes the library as long as to read some fields.
template<typename Data, typename Names>
auto FindFields(const Data& data, const Names& names)
{
    std::vector<const std::remove_cvref_t<decltype(*data.begin())>*> found(names.size());
    for (const auto& datum : data) {
        const std::string key = datum.key();
        const auto name = std::find(names.begin(), names.end(), key);
        if (name != names.end() && !found[std::size_t(name - names.begin())])
            found[std::size_t(name - names.begin())] = &datum;
    }
    return found;
}

void WriteXmp(Place place, const Exiv2::XmpData& xmp, EntryWriter& entries)
{
    for (const Exiv2::Xmpdatum* datum : FindFields(xmp, xmpTexts)) {
        if (datum)
            WriteXmpField(place, *datum, entries);
    }
    if (place == InPicture)
        return;
    const std::string own = "Xmp." + std::string(ownPrefix) + ".";
    for (const Exiv2::Xmpdatum& datum : xmp) {
        const std::string key = datum.key();
        if (key.compare(0, own.size(), own) == 0 && key.find('[') == std::string::npos)
            WriteXmpField(place, datum, entries);
    }
}

void WriteSidecars(const std::string& picture, EntryWriter& entries)
{
    for (const SidecarFile& sidecar : SidecarsOf(picture)) {
        Exiv2::XmpData xmp;
        if (ReadSidecar(sidecar.path, xmp) == SidecarState::Whole &&
            !IsOfOtherPicture(picture, xmp))
            WriteXmp(sidecar.place, xmp, entries);
    }
}

void WriteIptc(const Exiv2::IptcData& iptc, EntryWriter& entries)
{
    std::size_t count = 0;
    for (const char* key : iptcTexts) {
        for (const Exiv2::Iptcdatum& datum : iptc) {
            if (datum.key() == key && ++count <= maxKeywords)
                entries.Write(InPicture, key, Bytes, datum.toString());
        }
    }
}

std::string RawBytes(const Exiv2::Value& value, Exiv2::ByteOrder order)
{
    std::vector<Exiv2::byte> bytes(std::size_t(std::max<long>(value.size(), 0)));
    if (!bytes.empty())
        value.copy(bytes.data(), order);
    return {bytes.begin(), bytes.end()};
}

Coding CodingOf(const Exiv2::Exifdatum& datum, Exiv2::ByteOrder order)
{
    if (dynamic_cast<const Exiv2::CommentValue*>(&datum.value()))
        return order == Exiv2::bigEndian ? CommentBigEndian : CommentLittleEndian;
    return datum.tagName().compare(0, 2, "XP") == 0 ? Utf16 : Bytes;
}

void WriteExif(const Exiv2::ExifData& exif, Exiv2::ByteOrder order, EntryWriter& entries)
{
    for (const Exiv2::Exifdatum* datum : FindFields(exif, exifTexts)) {
        if (datum && std::size_t(datum->size()) <= longestText)
            entries.Write(InPicture, datum->key(), CodingOf(*datum, order),
                          RawBytes(datum->value(), order));
    }
}

template<typename Type>
bool IsShownFormat(Type type)
{
    return type == Exiv2::ImageType::jpeg || type == Exiv2::ImageType::tiff ||
           type == Exiv2::ImageType::png || type == Exiv2::ImageType::webp ||
           type == Exiv2::ImageType::gif || type == Exiv2::ImageType::bmp;
}

Status StatusOf(const std::string& path, struct stat& status)
{
    if (path.empty() || stat(path.c_str(), &status) != 0)
        return NotThere;
    // A pipe would be waited for, and the library reads other kinds of paths from the network.
    return path.front() == '/' && S_ISREG(status.st_mode) ? Done : OtherFormat;
}

// Null where the library knows no such format, or where the file is too short for some of those
// that it tries. Reads no more than the format.
std::unique_ptr<Exiv2::Image> OpenImage(const std::string& path)
{
    try {
        // Older versions of the library return a pointer of a deprecated kind.
        return std::unique_ptr<Exiv2::Image>(Exiv2::ImageFactory::open(path).release());
    } catch (const std::exception&) {
        return nullptr;
    }
}

} // namespace

void WritePictureFields(const std::string& path, const std::string& language, FrameWriter& stream)
{
    EntryWriter entries(language, stream);
    struct stat file = {};
    const Status status = StatusOf(path, file);
    const auto image = status == Done ? OpenImage(path) : nullptr;
    if (!image || !IsShownFormat(image->imageType())) {
        stream.Number(status == Done ? OtherFormat : status);
        return;
    }
    bool isDamaged = false;
    try {
        image->readMetadata();
    } catch (const std::exception&) {
        isDamaged = true; // the library keeps what it had read before
    }
    stream.Number(isDamaged ? Damaged : Done);
    WriteSidecars(path, entries);
    WriteXmp(InPicture, image->xmpData(), entries);
    WriteIptc(image->iptcData(), entries);
    WriteExif(image->exifData(), image->byteOrder(), entries);
    entries.Write(InPicture, "JPEG comment", Bytes, image->comment());
    entries.Write(InPicture, fileTimeField, Utf8, std::to_string(file.st_mtime));
}
