// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// What lumenark-metadata answers to requests (HelperQueue.h).
//
// lumenark-metadata read LANGUAGE: a request is a file's path. The answer is a Status and, where it
// is Read, an entry for each text: its Place, the name of its field, its Coding, and its bytes. A
// text in that language ("fr") of a field with texts in several comes before the default one, its
// field's name with "/" and the language at the end.
//
// lumenark-metadata sidecar: a request is what SidecarRequest says. The answer is a Status, the
// path of the sidecar, and what it is to hold.
namespace MetadataStream {

enum Status : std::uint32_t {
    Done = 0,
    NotThere = 1,
    OtherFormat = 2, // not one of the pictures that the program shows
    Damaged = 3,     // or of a kind that is not read; entries may follow all the same
};

enum Place : std::uint32_t {
    InPicture = 0,
    InOwnSidecar = 1,    // photo.jpg.xmp
    InSharedSidecar = 2, // photo.xmp
};

enum Coding : std::uint32_t {
    Utf8 = 0,
    Bytes = 1, // UTF-8, or the writer's own 8-bit character set
    Utf16 = 2, // little-endian
    // Eight bytes that name a character set, then the text; in the order of the file's numbers.
    CommentLittleEndian = 3,
    CommentBigEndian = 4,
};

// The field of the file's own time, in seconds since the beginning of 1970 (UTC).
inline constexpr char fileTimeField[] = "File time";

// The program's own fields in a sidecar. Their texts are as QuotedText writes them.
inline constexpr char ownNamespace[] = "urn:lumenark:descriptions:1.0/";
inline constexpr char ownPrefix[] = "lumenark";

} // namespace MetadataStream
