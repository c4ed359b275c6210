// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// The frames (FrameStream.h) that the reader of former albums writes. Texts are UTF-8.
namespace OldAlbumStream {

enum Frame : unsigned char {
    Header = 'H',  // 1 when the file has a password, else 0
    Table = 'T',   // first page, name
    Columns = 'C', // stated number of rows, last identifier given, then the columns' names
    Page = 'P',    // page that the next rows are on
    Attempt = 'A', // page and row to be tried next; only from a careful reader
    Row = 'R',     // page, row, then the values
    LostRow = 'X', // page and row of an unreadable row
    End = 'E',     // all was read; a stream without it is incomplete
};

// A value is its size, which may carry a mark, and its bytes. These two sizes have no bytes.
constexpr std::uint32_t nullValue = 0xFFFFFFFF;
constexpr std::uint32_t unreadableValue = 0xFFFFFFFE;
// Set in the size when the end of the text is lost.
constexpr std::uint32_t cutMark = 0x40000000;

// Maximum bytes of all values of a row; the limit of the album.
constexpr std::uint32_t largestRow = 64 * 1024 * 1024;

// Exit codes of the reader.
enum Exit {
    Done = 0,
    BadUse = 2,
    WrongPassword = 3,
    NotReadable = 4,     // unknown version, or the first page is damaged
    TableUnreadable = 5, // the table's definition is damaged
};

} // namespace OldAlbumStream
