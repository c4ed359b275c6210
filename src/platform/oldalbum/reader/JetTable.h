// SPDX-License-Identifier: MIT
#pragma once

#include "JetFile.h"

#include <functional>
#include <vector>

// One table of a file: its columns, and its live rows in table order.
//
// The library itself returns rows in file order. A row that outgrew its page was moved and left a
// pointer in its place. Table order is that of the pointers, so they are followed here.
class JetTable
{
public:
    struct Place
    {
        std::uint32_t page = 0;
        std::uint32_t row = 0;
    };

    // Which pages to read: those in the table's own map; or, when that is damaged, all pages of the
    // file that claim to belong to the table; or those of them that are not in the map.
    enum class Pages { OfMap, OfFile, OutsideMap };

    struct Visitor
    {
        virtual ~Visitor() = default;
        virtual void AtPage(std::uint32_t page) = 0;
        virtual void BeforeRow(Place place) = 0;
        // The row is in the file's current page during the call.
        virtual void AtRow(Place place, const std::vector<MdbField>& fields, int start,
                           int size) = 0;
        virtual void AtLostRow(Place place) = 0;
    };

    // page: the one with the table's definition.
    JetTable(const JetFile& file, std::uint32_t page);
    ~JetTable();
    JetTable(const JetTable&) = delete;
    JetTable& operator=(const JetTable&) = delete;

    // False when the definition is damaged; then call nothing else.
    bool IsReadable() const { return table_ && table_->columns; }

    std::vector<const MdbColumn*> GetColumns() const;
    std::uint32_t GetRowCount() const { return table_->num_rows; } // as stated; 0 may be wrong
    // The last number given to a row, even if that row is gone; 0 for none.
    std::uint32_t GetLastNumber() const { return lastNumber_; }

    void Read(Pages pages, Place from, Visitor& visitor);

private:
    bool GoToNextPage(Pages pages);
    void NoteMap();
    bool IsOwnPage() const;
    void ReadPage(std::uint32_t firstRow, Visitor& visitor);
    void ReadRow(Place place, int start, std::size_t size, Visitor& visitor);
    void ReadMovedRow(Place place, int start, std::size_t size, Visitor& visitor);

    const JetFile& file_;
    MdbHandle* handle_;
    MdbCatalogEntry entry_ = {};
    MdbTableDef* table_ = nullptr;
    std::uint32_t lastNumber_ = 0;
    std::uint32_t nextPage_ = 0; // the first one not read yet
    std::vector<bool> inMap_;    // pages to skip when reading those outside the map
    std::vector<MdbField> fields_;
};
