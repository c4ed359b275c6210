// SPDX-License-Identifier: MIT
#pragma once

#include "JetFile.h"

#include <functional>
#include <vector>

// One table of a file: its columns and its live rows in the order of the table.
//
// The library itself gives rows as they lie in the file. A row that outgrew its page leaves a
// pointer behind and lies elsewhere; the order of the table is that of the pointers, so they are
// followed here.
class JetTable
{
public:
    struct Place
    {
        std::uint32_t page = 0;
        std::uint32_t row = 0;
    };

    // Where the pages are taken from: the table's own map, or, where that is damaged, every page of
    // the file that says that it belongs to the table, or those of them that the map leaves out.
    enum class Pages { OfMap, OfFile, OutsideMap };

    struct Visitor
    {
        virtual ~Visitor() = default;
        virtual void AtPage(std::uint32_t page) = 0;
        virtual void BeforeRow(Place place) = 0;
        // The row lies in the file's current page while this runs.
        virtual void AtRow(Place place, const std::vector<MdbField>& fields, int start,
                           int size) = 0;
        virtual void AtLostRow(Place place) = 0;
    };

    // page: where the table describes itself.
    JetTable(const JetFile& file, std::uint32_t page);
    ~JetTable();
    JetTable(const JetTable&) = delete;
    JetTable& operator=(const JetTable&) = delete;

    // False when the description is damaged; then nothing else may be asked.
    bool IsReadable() const { return table_ && table_->columns; }

    std::vector<const MdbColumn*> GetColumns() const;
    std::uint32_t GetRowCount() const { return table_->num_rows; } // as stated; 0 may be wrong
    // The last number that was given to a row, also where that row is gone; 0 when never.
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
    std::uint32_t nextPage_ = 0; // the first one that was not read yet
    std::vector<bool> inMap_;    // pages to leave out, when those outside the map are read
    std::vector<MdbField> fields_;
};
