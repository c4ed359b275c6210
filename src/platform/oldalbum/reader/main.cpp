// SPDX-License-Identifier: MIT
// Reads albums of the former file format for Lumenark, which starts it
// as a separate process: such files come from anywhere, and a damaged one can make the library that
// reads them crash or run for ever.
//
//   lumenark-import tables FILE [file]
//   lumenark-import password FILE
//   lumenark-import rows FILE PAGE FROM-PAGE FROM-ROW [careful] [file | rest]
//
// The password to try is read from standard input. "file" reads all pages of the file instead of
// those in the table's map, "rest" those not in the map; "careful" announces each row before it is
// read. OldAlbumStream.h describes the output and the exit codes.
#include "JetFile.h"
#include "JetTable.h"
#include "JetValue.h"
#include "platform/helper/child/FrameWriter.h"
#include "platform/helper/child/Limits.h"
#include "platform/oldalbum/OldAlbumStream.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <iterator>

using namespace OldAlbumStream;

namespace {

constexpr std::uint32_t catalogPage = 2; // of the table that lists all tables
constexpr long secondsPerPage = 2;       // of processor time; a page takes a few microseconds
constexpr std::size_t maxMemory = 512 * 1024 * 1024;
constexpr std::uint32_t systemFlags = 0x80000002;

void WindUpClock()
{
    LimitProcessorTime(secondsPerPage);
}

void LimitMyself()
{
    LimitMemory(maxMemory);
    // These variables would change how the library reads.
    for (const char* name : {"MDBICONV", "MDB_JET3_CHARSET", "MDBOPTS", "MDBPATH"})
        unsetenv(name);
    WindUpClock();
}

class RowWriter : public JetTable::Visitor
{
public:
    RowWriter(const JetFile& file, std::vector<const MdbColumn*> columns, FrameWriter& stream,
              bool careful)
        : file_(file), columns_(std::move(columns)), stream_(stream), careful_(careful)
    {
    }

    void AtPage(std::uint32_t page) override
    {
        WindUpClock();
        stream_.Begin(Page);
        stream_.Number(page);
        stream_.End();
        stream_.Flush();
    }

    void BeforeRow(JetTable::Place place) override
    {
        if (careful_)
            WritePlace(Attempt, place);
    }

    void AtLostRow(JetTable::Place place) override { WritePlace(LostRow, place); }

    void AtRow(JetTable::Place place, const std::vector<MdbField>& fields, int start,
               int size) override
    {
        stream_.Begin(Row);
        stream_.Number(place.page);
        stream_.Number(place.row);
        for (std::size_t i = 0; i < columns_.size(); ++i)
            WriteValue(ReadValue(file_, *columns_[i], fields[i], start, size, RoomInRow()));
        stream_.End();
    }

private:
    std::size_t RoomInRow() const
    {
        return largestRow - std::min<std::size_t>(largestRow, stream_.GetFrameSize());
    }

    void WritePlace(Frame frame, JetTable::Place place)
    {
        stream_.Begin(frame);
        stream_.Number(place.page);
        stream_.Number(place.row);
        stream_.End();
        stream_.Flush();
    }

    void WriteValue(const JetValue& value)
    {
        const bool fits = value.text.size() <= RoomInRow();
        if (value.state == JetValue::State::Null)
            stream_.Number(nullValue);
        else if (value.state == JetValue::State::Unreadable || !fits)
            stream_.Number(unreadableValue);
        else
            stream_.Text(value.text, value.state == JetValue::State::Cut ? cutMark : 0);
    }

    const JetFile& file_;
    std::vector<const MdbColumn*> columns_;
    FrameWriter& stream_;
    bool careful_;
};

// Writes the user tables among the catalogue's rows.
class CatalogWriter : public JetTable::Visitor
{
public:
    CatalogWriter(const JetFile& file, const std::vector<const MdbColumn*>& columns,
                  FrameWriter& stream)
        : file_(file), columns_(columns), stream_(stream)
    {
    }

    void AtPage(std::uint32_t) override { WindUpClock(); }
    void BeforeRow(JetTable::Place) override {}
    void AtLostRow(JetTable::Place) override {}

    void AtRow(JetTable::Place, const std::vector<MdbField>& fields, int start, int size) override
    {
        std::uint32_t id = 0;
        std::uint32_t type = 0;
        std::uint32_t flags = 0;
        std::string name;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const JetValue value =
                ReadValue(file_, *columns_[i], fields[i], start, size, MDB_MAX_OBJ_NAME);
            const auto number = std::uint32_t(std::strtoll(value.text.c_str(), nullptr, 10));
            if (Is(i, "Id"))
                id = number;
            else if (Is(i, "Type"))
                type = number & 0x7F;
            else if (Is(i, "Flags"))
                flags = number;
            else if (Is(i, "Name"))
                name = value.text;
        }
        if (type == MDB_TABLE && !(flags & systemFlags) && !name.empty())
            WriteTable(id & 0x00FFFFFF, name);
    }

private:
    bool Is(std::size_t column, const char* name) const
    {
        return g_ascii_strcasecmp(columns_[column]->name, name) == 0;
    }

    void WriteTable(std::uint32_t page, const std::string& name)
    {
        stream_.Begin(Table);
        stream_.Number(page);
        stream_.Text(name);
        stream_.End();
    }

    const JetFile& file_;
    const std::vector<const MdbColumn*>& columns_;
    FrameWriter& stream_;
};

int WriteEnd(FrameWriter& stream)
{
    stream.Begin(End);
    stream.End();
    stream.Flush();
    return Done;
}

int WriteTables(const JetFile& file, JetTable::Pages pages, FrameWriter& stream)
{
    stream.Begin(Header);
    stream.Number(file.GetPassword().empty() ? 0 : 1);
    stream.End();
    JetTable catalog(file, catalogPage);
    if (!catalog.IsReadable())
        return TableUnreadable;
    const std::vector<const MdbColumn*> columns = catalog.GetColumns();
    CatalogWriter writer(file, columns, stream);
    catalog.Read(pages, {}, writer);
    return WriteEnd(stream);
}

int WriteRows(const JetFile& file, std::uint32_t page, JetTable::Place from, bool careful,
              JetTable::Pages pages, FrameWriter& stream)
{
    JetTable table(file, page);
    if (!table.IsReadable())
        return TableUnreadable;
    const std::vector<const MdbColumn*> columns = table.GetColumns();
    stream.Begin(Columns);
    stream.Number(table.GetRowCount());
    stream.Number(table.GetLastNumber());
    for (const MdbColumn* column : columns)
        stream.Text(column->name);
    stream.End();
    stream.Flush();
    RowWriter writer(file, columns, stream, careful);
    table.Read(pages, from, writer);
    return WriteEnd(stream);
}

int TryPassword(const JetFile& file)
{
    const std::string given(std::istreambuf_iterator<char>(std::cin), {});
    return given == file.GetPassword() ? Done : WrongPassword;
}

bool HasOption(const std::vector<std::string>& arguments, const char* option)
{
    return std::find(arguments.begin() + 3, arguments.end(), option) != arguments.end();
}

int Run(const std::vector<std::string>& arguments)
{
    if (arguments.size() < 3) {
        std::cerr << "lumenark-import is started by lumenark, to read albums of former versions\n";
        return BadUse;
    }
    FrameWriter stream(TakeOutput());
    const auto file = JetFile::Open(arguments[2].c_str());
    if (!file)
        return NotReadable;
    const JetTable::Pages pages = HasOption(arguments, "file")   ? JetTable::Pages::OfFile
                                  : HasOption(arguments, "rest") ? JetTable::Pages::OutsideMap
                                                                 : JetTable::Pages::OfMap;
    if (arguments[1] == "tables")
        return WriteTables(*file, pages, stream);
    if (arguments[1] == "password")
        return TryPassword(*file);
    if (arguments[1] != "rows" || arguments.size() < 6)
        return BadUse;
    const auto number = [&arguments](std::size_t i) {
        return std::uint32_t(std::strtoul(arguments[i].c_str(), nullptr, 10));
    };
    return WriteRows(*file, number(3), {number(4), number(5)}, HasOption(arguments, "careful"),
                     pages, stream);
}

} // namespace

int main(int argc, char** argv)
{
    LimitMyself();
    // Without cleaning up: the library leaks some memory, which needs no report.
    std::_Exit(Run(std::vector<std::string>(argv, argv + argc)));
}
