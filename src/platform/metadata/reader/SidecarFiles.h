// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/metadata/MetadataStream.h"

#include <exiv2/exiv2.hpp>

#include <array>
#include <optional>
#include <string>

// The sidecars of a picture: photo.jpg.xmp, which is its own, and photo.xmp, which it may share
// with pictures that differ in the extension.
struct SidecarFile
{
    MetadataStream::Place place;
    std::string path;
};

// In the order in which they are read and written.
std::array<SidecarFile, 2> SidecarsOf(const std::string& picture);

enum class SidecarState { Missing, Unreadable, Whole };

// Reads a sidecar; xmp is empty unless it is whole.
SidecarState ReadSidecar(const std::string& path, Exiv2::XmpData& xmp);

// Whether the sidecar says of itself that it describes another picture of that base name.
bool IsOfOtherPicture(const std::string& picture, const Exiv2::XmpData& xmp);

// Names the picture that a sidecar was made for, as QuotedNameOf gives it.
inline constexpr char pictureKey[] = "Xmp.lumenark.Picture";

// The file's name without its folder, in plain ASCII: a name may hold bytes that no text may.
std::string QuotedNameOf(const std::string& path);

// The text of a field, none when it is not there.
std::optional<std::string> TextOf(const Exiv2::XmpData& xmp, const std::string& key);

// One text of several languages: the default one, else the first.
std::string DefaultOf(const Exiv2::LangAltValue& texts);
