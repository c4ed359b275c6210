// SPDX-License-Identifier: MIT
#include "JetValue.h"

#include <algorithm>
#include <cstring>
#include <unordered_set>

namespace {

using State = JetValue::State;

// A long text as stored in its row: size and kind, the first piece's page and row, four more bytes,
// and the text itself if it is short.
constexpr int memoHead = 12; // bytes
constexpr std::uint32_t memoSizeBits = 0x3FFFFFFF;
constexpr std::uint32_t memoInRow = 0x80000000;
constexpr std::uint32_t memoInOnePiece = 0x40000000;
constexpr int pieceHead = 4; // bytes: page and row of the next piece

std::uint32_t NumberAt(const void* bytes, int offset)
{
    unsigned char number[4];
    std::memcpy(number, static_cast<const unsigned char*>(bytes) + offset, sizeof number);
    return number[0] | number[1] << 8 | number[2] << 16 | std::uint32_t(number[3]) << 24;
}

struct Piece
{
    void* page = nullptr;
    int start = 0;
    std::size_t size = 0;
};

bool FindPiece(const JetFile& file, std::uint32_t place, Piece& piece)
{
    const auto pageSize = std::size_t(file.GetHandle()->fmt->pg_size);
    return mdb_find_pg_row(file.GetHandle(), int(place), &piece.page, &piece.start, &piece.size) ==
               0 &&
           piece.start >= 0 && std::size_t(piece.start) + piece.size <= pageSize;
}

// Reads a text whose pieces each name the next. The library follows them to the end, so it never
// returns when they form a ring; here a repeated piece ends the text.
JetValue ReadPieces(const JetFile& file, std::uint32_t place, std::size_t size)
{
    std::string bytes;
    std::unordered_set<std::uint32_t> seen;
    while (place != 0 && bytes.size() < size && seen.insert(place).second) {
        Piece piece;
        if (!FindPiece(file, place, piece) || piece.size <= pieceHead)
            break;
        bytes.append(static_cast<const char*>(piece.page) + piece.start + pieceHead,
                     piece.size - pieceHead);
        place = NumberAt(piece.page, piece.start);
    }
    if (bytes.empty() && size > 0)
        return {State::Unreadable, {}};
    const State state = bytes.size() < size ? State::Cut : State::Whole;
    bytes.resize(std::min(bytes.size(), size));
    return {state, file.ToUtf8(bytes)};
}

JetValue ReadOnePiece(const JetFile& file, std::uint32_t place, std::size_t size)
{
    Piece piece;
    if (!FindPiece(file, place, piece))
        return {State::Unreadable, {}};
    const std::size_t length = std::min(size, piece.size);
    const auto* text = static_cast<const char*>(piece.page) + piece.start;
    return {length < size ? State::Cut : State::Whole, file.ToUtf8({text, length})};
}

JetValue ReadMemo(const JetFile& file, int start, int size, std::size_t maxBytes)
{
    if (size == 0)
        return {State::Whole, {}};
    if (size < memoHead)
        return {State::Unreadable, {}};
    const unsigned char* page = file.GetHandle()->pg_buf;
    const std::uint32_t head = NumberAt(page, start);
    const std::uint32_t place = NumberAt(page, start + 4);
    const std::size_t length = head & memoSizeBits;
    if (head & memoInRow) {
        const auto* text = reinterpret_cast<const char*>(page) + start + memoHead;
        return {State::Whole, file.ToUtf8({text, std::size_t(size - memoHead)})};
    }
    if (length > maxBytes)
        return {State::Unreadable, {}};
    return head & memoInOnePiece ? ReadOnePiece(file, place, length)
                                 : ReadPieces(file, place, length);
}

JetValue ReadOther(const JetFile& file, const MdbColumn& column, int start, int size)
{
    MdbHandle* handle = file.GetHandle();
    char* text = mdb_col_to_string(handle, handle->pg_buf, start, column.col_type, size);
    if (!text)
        return {State::Unreadable, {}};
    JetValue value{State::Whole, text};
    g_free(text);
    return value;
}

} // namespace

JetValue ReadValue(const JetFile& file, const MdbColumn& column, const MdbField& field,
                   int rowStart, int rowSize, std::size_t maxBytes)
{
    // A boolean is never Null: the Null bit holds its value.
    if (column.col_type == MDB_BOOL)
        return {State::Whole, field.is_null ? "0" : "1"};
    if (field.is_null)
        return {};
    if (field.start < rowStart || field.siz < 0 || field.start + field.siz > rowStart + rowSize)
        return {State::Unreadable, {}};
    switch (column.col_type) {
    case MDB_TEXT: {
        const auto* text = reinterpret_cast<const char*>(file.GetHandle()->pg_buf) + field.start;
        return {State::Whole, file.ToUtf8({text, std::size_t(field.siz)})};
    }
    case MDB_MEMO:
        return ReadMemo(file, field.start, field.siz, maxBytes);
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
    case MDB_MONEY:
    case MDB_FLOAT:
    case MDB_DOUBLE:
    case MDB_DATETIME:
        return field.siz > 0 ? ReadOther(file, column, field.start, field.siz)
                             : JetValue{State::Unreadable, {}};
    default:
        return {State::Unreadable, {}};
    }
}
