// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/RecordSet.h"

#include <QString>

#include <functional>
#include <memory>

namespace GeneralModule {

// The album that is open: its database, and the record sets over its tables. Each set has one
// current row that all windows share, so a routine positions a set before it reads or writes.
struct Album
{
    // Opens all of it or throws DatabaseError.
    Album(const QString& path, const QString& password);

    std::shared_ptr<Database> database;
    RecordSet params;
    RecordSet paragraphs;
    RecordSet images;
    RecordSet chapters;
    RecordSet linkedImages;
};

bool IsAlbumOpen();

// Whether the open album can only be read: its file or its folder cannot be written. False while
// none is open.
bool IsAlbumReadOnly();
// What to tell whoever wants to change it.
QString ReadOnlyReason();

// Throws DatabaseError NoAlbum while none is open.
Album& OpenedAlbum();

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

// Releases the album that is open, opens this one, and remembers it as the last one. Asks for the
// password, unless the one given fits, until it does or the answer is empty. False, with a message
// shown unless the user gave up, when the album could not be opened. No album is open while boxes
// are up, nor after a failure. Of an album in the former file format a new one is made, if the user
// agrees, and that is the one that is opened and remembered. Where another copy of the program has
// the album open, the user may go there instead.
bool OpenAlbum(const QString& path, const QString& password = {});

// Whether the last OpenAlbum ended with the user going to another window that has the album open.
bool HasGoneToOtherWindow();

// Runs when another copy of the program sends the user to the window that has the album open.
void SetCallHandler(const std::function<void()>& onCalled);

// Copies the template to path, over a file that is there. False, with a message shown, when that
// fails; an existing file then stays as it was.
bool CreateAlbumFile(const QString& path);

// Ends the use of the album, so that its file may be moved or removed.
void ReleaseAlbum();

// Positions the set on the row of that identifier. False, and the set stays, when there is none.
bool FindById(RecordSet& set, qint32 id);

} // namespace GeneralModule
