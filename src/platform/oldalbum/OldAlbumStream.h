// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

// What the reader of former albums writes to its standard output, for the program that started it.
// A frame is its kind (one byte), the size of what follows (four bytes), and that. All numbers are
// 32 bits, least byte first; texts are UTF-8 behind their size.
namespace OldAlbumStream {

enum Frame : unsigned char {
    Header = 'H',  // 1 when the file has a password, else 0
    Table = 'T',   // first page, name
    Columns = 'C', // rows that there should be, last identifier given, then the columns' names
    Page = 'P',    // page that is read from now on
    Attempt = 'A', // page and row that is tried next; written by a careful reader only
    Row = 'R',     // page, row, then the values
    LostRow = 'X', // page and row that cannot be read
    End = 'E',     // all was read; a stream without it broke off
};

constexpr std::size_t frameHead = 5; // bytes

// A value is its size, perhaps marked, and its bytes; these two have none.
constexpr std::uint32_t nullValue = 0xFFFFFFFF;
constexpr std::uint32_t unreadableValue = 0xFFFFFFFE;
// Beside the size: the end of the text is lost.
constexpr std::uint32_t cutMark = 0x40000000;

// Bytes that the values of one row may have together; what the album can hold.
constexpr std::uint32_t largestRow = 64 * 1024 * 1024;

// Exit codes of the reader.
enum Exit {
    Done = 0,
    BadUse = 2,
    WrongPassword = 3,
    NotReadable = 4,     // not of a version that is read, or its first page is damaged
    TableUnreadable = 5, // the table's own description is damaged
};

} // namespace OldAlbumStream
