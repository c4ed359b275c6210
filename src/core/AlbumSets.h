// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/RecordSet.h"

#include <memory>

class UndoHistory;

// The tables of the open album, for routines that read and write it. Windows do not include this:
// they call those routines.
namespace GeneralModule {

// The album that is open: its database, and the record sets over its tables. Each set has one
// current row that all windows share, so a routine positions a set before it reads or writes.
struct Album
{
    // Opens all of it or throws DatabaseError; an earlier state of an album only for reading.
    Album(const QString& path, const QString& password);

    std::shared_ptr<Database> database;
    std::shared_ptr<UndoHistory> history;
    RecordSet params;
    RecordSet paragraphs;
    RecordSet images;
    RecordSet chapters;
    RecordSet linkedImages;
};

// Throws DatabaseError NoAlbum while none is open.
Album& OpenedAlbum();
// Null while none is open.
Album* FindOpenedAlbum();
// The album that is open before is closed; null leaves none open.
void SetOpenedAlbum(std::unique_ptr<Album> album);

// Stand for parts of the album that is open. Whoever reaches for one while none is open gets
// DatabaseError NoAlbum.
template<RecordSet Album::*Set>
struct OpenedSet
{
    RecordSet& operator*() const { return OpenedAlbum().*Set; }
    RecordSet* operator->() const { return &(OpenedAlbum().*Set); }
};

struct OpenedDatabase
{
    Database& operator*() const { return *OpenedAlbum().database; }
    Database* operator->() const { return OpenedAlbum().database.get(); }
    operator std::shared_ptr<Database>() const { return OpenedAlbum().database; }
};

inline constexpr OpenedDatabase AlbumDatabase;
inline constexpr OpenedSet<&Album::params> ParamsSet;
inline constexpr OpenedSet<&Album::paragraphs> ParagraphSet;
inline constexpr OpenedSet<&Album::images> ImageSet;
inline constexpr OpenedSet<&Album::chapters> ChapterSet;
inline constexpr OpenedSet<&Album::linkedImages> LinkedImagesSet;

// Positions the set on the row of that identifier. False, and the set stays, when there is none.
bool FindById(RecordSet& set, qint32 id);

} // namespace GeneralModule
