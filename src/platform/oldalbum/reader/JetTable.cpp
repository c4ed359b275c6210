// SPDX-License-Identifier: MIT
#include "JetTable.h"

#include <algorithm>

namespace {

constexpr unsigned maxColumns = 255; // of a table, in the format
constexpr int lastNumberAtJet3 = 0x10;
constexpr int lastNumberAtJet4 = 0x14;
constexpr int maxRows = 1000; // of a page; the library finds no more

// A row's offset in its page, and two flag bits.
constexpr int offsetBits = 0x1FFF;
constexpr int pointerBit = 0x4000; // holds only the row's new place
constexpr int awayBit = 0x8000;    // reached through a pointer; both bits: deleted

} // namespace

JetTable::JetTable(const JetFile& file, std::uint32_t page) : file_(file), handle_(file.GetHandle())
{
    entry_.mdb = handle_;
    entry_.object_type = MDB_TABLE;
    entry_.table_pg = page;
    table_ = mdb_read_table(&entry_);
    if (!table_ || table_->num_cols == 0 || table_->num_cols > maxColumns)
        return;
    lastNumber_ = std::uint32_t(
        mdb_get_int32(handle_->pg_buf, IS_JET3(handle_) ? lastNumberAtJet3 : lastNumberAtJet4));
    mdb_read_columns(table_);
    fields_.resize(table_->num_cols);
}

JetTable::~JetTable()
{
    mdb_free_tabledef(table_);
}

std::vector<const MdbColumn*> JetTable::GetColumns() const
{
    std::vector<const MdbColumn*> columns;
    for (unsigned i = 0; i < table_->columns->len; ++i)
        columns.push_back(static_cast<const MdbColumn*>(g_ptr_array_index(table_->columns, i)));
    return columns;
}

bool JetTable::IsOwnPage() const
{
    return handle_->pg_buf[0] == MDB_PAGE_DATA &&
           std::uint32_t(mdb_get_int32(handle_->pg_buf, 4)) == entry_.table_pg;
}

// Pages come in ascending order, so that reading can resume at any of them.
bool JetTable::GoToNextPage(Pages pages)
{
    if (pages == Pages::OfMap) {
        while (mdb_read_next_dpg(table_)) {
            // Where part of the map is unreadable the library goes through the file, starting with
            // the page that it has just returned.
            if (handle_->cur_pg < nextPage_)
                continue;
            nextPage_ = handle_->cur_pg + 1;
            return true;
        }
        return false;
    }
    while (nextPage_ < file_.GetPageCount()) {
        const std::uint32_t page = nextPage_++;
        const bool isLeftOut = page < inMap_.size() && inMap_[page];
        if (!isLeftOut && mdb_read_pg(handle_, page) && IsOwnPage())
            return true;
    }
    return false;
}

void JetTable::NoteMap()
{
    inMap_.assign(file_.GetPageCount(), false);
    while (GoToNextPage(Pages::OfMap)) {
        if (nextPage_ - 1 < inMap_.size())
            inMap_[nextPage_ - 1] = true;
    }
    nextPage_ = 0;
}

void JetTable::Read(Pages pages, Place from, Visitor& visitor)
{
    mdb_rewind_table(table_);
    inMap_.clear();
    if (pages == Pages::OutsideMap)
        NoteMap();
    table_->cur_phys_pg = from.page > 0 ? from.page - 1 : 0;
    nextPage_ = from.page;
    while (GoToNextPage(pages)) {
        const std::uint32_t page = nextPage_ - 1;
        visitor.AtPage(page);
        ReadPage(page == from.page ? from.row : 0, visitor);
    }
}

void JetTable::ReadPage(std::uint32_t firstRow, Visitor& visitor)
{
    const std::uint32_t page = nextPage_ - 1;
    const int countAt = handle_->fmt->row_count_offset;
    const int room = (int(handle_->fmt->pg_size) - countAt - 2) / 2;
    const int rows = std::min({mdb_get_int16(handle_->pg_buf, countAt), room, maxRows});
    for (int row = int(firstRow); row < rows; ++row) {
        const Place place{page, std::uint32_t(row)};
        int start = 0;
        std::size_t size = 0;
        const bool found = mdb_find_row(handle_, row, &start, &size) == 0;
        const bool isPointer = start & pointerBit;
        if (start & awayBit)
            continue; // deleted, or reached through its pointer
        visitor.BeforeRow(place);
        if (!found || size == 0)
            visitor.AtLostRow(place);
        else if (isPointer)
            ReadMovedRow(place, start & offsetBits, size, visitor);
        else
            ReadRow(place, start & offsetBits, size, visitor);
    }
}

void JetTable::ReadRow(Place place, int start, std::size_t size, Visitor& visitor)
{
    if (mdb_crack_row(table_, start, size, fields_.data()) < 0)
        visitor.AtLostRow(place);
    else
        visitor.AtRow(place, fields_, start, int(size));
}

void JetTable::ReadMovedRow(Place place, int start, std::size_t size, Visitor& visitor)
{
    const auto target =
        size >= 4 ? std::uint32_t(mdb_get_int32(handle_->pg_buf, start)) : std::uint32_t(0);
    int targetStart = 0;
    std::size_t targetSize = 0;
    const bool found = target != 0 && mdb_read_pg(handle_, target >> 8) == handle_->fmt->pg_size &&
                       IsOwnPage() &&
                       mdb_find_row(handle_, int(target & 0xFF), &targetStart, &targetSize) == 0 &&
                       targetSize > 0 && (targetStart & (awayBit | pointerBit)) == awayBit;
    if (found)
        ReadRow(place, targetStart & offsetBits, targetSize, visitor);
    else
        visitor.AtLostRow(place);
    mdb_read_pg(handle_, place.page);
}
