// SPDX-License-Identifier: GPL-2.0-or-later
#include "SidecarFiles.h"

#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <memory>

namespace {

constexpr off_t largestSidecar = 16 * 1024 * 1024; // bytes

// Where the extension's dot is; the end of the path where there is none.
std::size_t DotOf(const std::string& path)
{
    const std::size_t dot = path.rfind('.');
    const std::size_t slash = path.rfind('/');
    const bool isExtension = dot != std::string::npos && dot > slash + 1;
    return isExtension ? dot : path.size();
}

bool IsSameExtension(const std::string& first, const std::string& second)
{
    return std::equal(
        first.begin(), first.end(), second.begin(), second.end(),
        [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

std::optional<std::string> ReadWhole(const std::string& path, off_t size)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file)
        return std::nullopt;
    std::string bytes(std::size_t(size), '\0');
    if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size())
        return std::nullopt;
    return bytes;
}

} // namespace

std::array<SidecarFile, 2> SidecarsOf(const std::string& picture)
{
    return {{{MetadataStream::InOwnSidecar, picture + ".xmp"},
             {MetadataStream::InSharedSidecar, picture.substr(0, DotOf(picture)) + ".xmp"}}};
}

SidecarState ReadSidecar(const std::string& path, Exiv2::XmpData& xmp)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        return SidecarState::Missing;
    if (!S_ISREG(status.st_mode) || status.st_size > largestSidecar)
        return SidecarState::Unreadable;
    const auto packet = ReadWhole(path, status.st_size);
    try {
        if (packet && !packet->empty() && Exiv2::XmpParser::decode(xmp, *packet) == 0)
            return SidecarState::Whole;
    } catch (const std::exception&) {
    }
    xmp.clear();
    return SidecarState::Unreadable;
}

bool IsOfOtherPicture(const std::string& picture, const Exiv2::XmpData& xmp)
{
    const auto extension = TextOf(xmp, "Xmp.photoshop.SidecarForExtension");
    const std::size_t dot = DotOf(picture);
    if (extension && !extension->empty() &&
        !IsSameExtension(*extension, picture.substr(std::min(dot + 1, picture.size()))))
        return true;
    const auto name = TextOf(xmp, pictureKey);
    return name && *name != QuotedNameOf(picture);
}

std::string QuotedNameOf(const std::string& path)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string quoted;
    for (const unsigned char byte : path.substr(path.rfind('/') + 1)) {
        if (byte > 0x20 && byte < 0x7F && byte != '%')
            quoted += char(byte);
        else
            quoted += {'%', digits[byte >> 4], digits[byte & 15]};
    }
    return quoted;
}

std::optional<std::string> TextOf(const Exiv2::XmpData& xmp, const std::string& key)
{
    const auto found = xmp.findKey(Exiv2::XmpKey(key));
    return found == xmp.end() ? std::nullopt : std::optional(found->toString());
}

std::string DefaultOf(const Exiv2::LangAltValue& texts)
{
    const auto found = texts.value_.find("x-default");
    if (found != texts.value_.end())
        return found->second;
    return texts.value_.empty() ? std::string() : texts.value_.begin()->second;
}
