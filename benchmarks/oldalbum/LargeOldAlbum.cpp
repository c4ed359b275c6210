// SPDX-License-Identifier: MIT
#include "LargeOldAlbum.h"

#include "platform/data/DatabaseError.h"
#include "platform/oldalbum/OldAlbumFile.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr qint64 pageSize = 4096;
constexpr int rowCountAt = 0x10; // in a table's description
constexpr int usageMapAt = 55;   // there: row and page of the map of the table's pages
constexpr int ownerAt = 4;       // in a data page
constexpr int firstRowAt = 14;
// A map's page: four bytes, then a bit for each page of the file.
constexpr int mapHead = 4;
constexpr qint64 pagesPerMap = (pageSize - mapHead) * 8;

quint32 NumberAt(const QByteArray& bytes, qint64 at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

void SetNumber(QByteArray& bytes, qint64 at, quint32 number)
{
    qToLittleEndian(number, bytes.data() + at);
}

std::vector<qint64> DataPages(const QByteArray& album, quint32 table)
{
    std::vector<qint64> pages;
    for (qint64 page = 0; page < album.size() / pageSize; ++page) {
        if (album[page * pageSize] == 1 && NumberAt(album, page * pageSize + ownerAt) == table)
            pages.push_back(page);
    }
    return pages;
}

// The table's map becomes one that names pages with maps, which begin behind the album's end.
void PointToMaps(QByteArray& album, quint32 table, qint64 firstMap, qint64 maps)
{
    const quint32 place = NumberAt(album, table * pageSize + usageMapAt);
    const qint64 page = qint64(place >> 8) * pageSize;
    const qint64 row = place & 0xFF;
    const auto start = qFromLittleEndian<quint16>(album.constData() + page + firstRowAt + row * 2);
    const qint64 at = page + (start & 0x1FFF);
    album[at] = 1;
    for (qint64 map = 0; map < 16; ++map)
        SetNumber(album, at + 1 + map * 4, map < maps ? quint32(firstMap + map) : 0);
}

bool IsUsed(qint64 page, const std::vector<qint64>& original, qint64 firstCopy, qint64 end)
{
    const bool isOriginal = std::find(original.begin(), original.end(), page) != original.end();
    return isOriginal || (page >= firstCopy && page < end);
}

bool WriteMaps(QFile& file, const std::vector<qint64>& original, qint64 maps, qint64 firstCopy,
               qint64 end)
{
    for (qint64 map = 0; map < maps; ++map) {
        QByteArray page(pageSize, '\0');
        page[0] = 5;
        page[1] = 1;
        for (qint64 bit = 0; bit < pagesPerMap; ++bit) {
            if (IsUsed(map * pagesPerMap + bit, original, firstCopy, end))
                page[mapHead + bit / 8] = char(page[mapHead + bit / 8] | 1 << bit % 8);
        }
        if (file.write(page) != pageSize)
            return false;
    }
    return true;
}

quint32 PictureTable(const QString& source)
{
    try {
        const OldAlbumFile album(source);
        for (const OldAlbumFile::Table& table : album.GetTables()) {
            if (table.name == u"Image")
                return table.page;
        }
    } catch (const DatabaseError& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 0;
}

} // namespace

qint64 WriteLargeOldAlbum(const QString& source, const QString& target, qint64 pictures)
{
    QFile from(source);
    QFile to(target);
    const quint32 table = PictureTable(source);
    if (table == 0 || !from.open(QIODevice::ReadOnly) || !to.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "%s cannot be read or %s not be written\n", qPrintable(source),
                     qPrintable(target));
        return 0;
    }
    QByteArray album = from.readAll();
    const std::vector<qint64> original = DataPages(album, table);
    const qint64 rows = NumberAt(album, table * pageSize + rowCountAt);
    const qint64 copies = (pictures + rows - 1) / rows - 1;
    const qint64 firstMap = album.size() / pageSize;
    const qint64 copied = copies * qint64(original.size());
    const qint64 maps = (firstMap + copied + 16) / pagesPerMap + 1;
    const qint64 firstCopy = firstMap + maps;
    PointToMaps(album, table, firstMap, maps);
    SetNumber(album, table * pageSize + rowCountAt, quint32(rows * (copies + 1)));
    bool written = to.write(album) == album.size() &&
                   WriteMaps(to, original, maps, firstCopy, firstCopy + copied);
    for (qint64 copy = 0; copy < copies && written; ++copy) {
        for (const qint64 page : original)
            written = written && to.write(album.mid(page * pageSize, pageSize)) == pageSize;
    }
    return written && to.flush() ? rows * (copies + 1) : 0;
}
