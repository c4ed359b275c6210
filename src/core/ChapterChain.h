// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The chapters of the open album, linked in reading order by PreviousChapter and NextChapter (0 =
// none). Chapters are found by name; nothing remembers their identifiers between two operations.
// The rows that one operation changes are committed together, all or none. All of it moves
// ChapterSet, and throws DatabaseError, NoAlbum while no album is open.
namespace GeneralModule {

// Names from the first chapter on, along NextChapter. A link to no chapter, or back to one that was
// listed, ends the list; chapters that the first one does not lead to are not in it. Where the
// album holds no name, or none that is valid text, "(no name)" stands for it, then "(no name 2)":
// chapters are found by these too.
QStringList ChapterNames();

// The name of one chapter as it is listed; empty when there is no such chapter.
QString ChapterTitle(qint32 chapter);

// A name begins with a letter from A to Z, in upper case, or a digit.
bool IsChapterName(const QString& name);

// Identifier of the chapter of that name; none when there is no such chapter. ChapterSet stands on
// its row.
std::optional<qint32> FindChapter(const QString& name);

// Adds an empty chapter after the one named so, or as the first when that name is empty. Links
// forward only: the chapter that followed keeps its PreviousChapter. Returns the new identifier.
// Throws DatabaseError, DuplicateKey for a name that an unlisted chapter has.
qint32 CreateChapter(const QString& name, const QString& after);

// False, and nothing changed, when the chapter is not in the album any more. Throws DatabaseError,
// DuplicateKey for a name that another chapter has.
bool RenameChapter(qint32 chapter, const QString& newName);

// The chapter that the reading order begins with, where ChapterSet then stands; 0 when there is
// none.
qint32 FirstChapter();

// The chapter before it in reading order, 0 for the first one: the one that leads here, which is
// not always the one that its own PreviousChapter names. Of a chapter that the reading order does
// not reach the one that it names itself.
qint32 ChapterLeadingTo(qint32 chapter);

// The chapter after it, 0 when there is none.
qint32 NextChapter(qint32 chapter);

enum class ChapterDeletion { Deleted, HasParagraphs, NotFound };
ChapterDeletion DeleteChapter(const QString& name);

// Exchanges the chapter with the one before or after it. False, and nothing changed, when there is
// none.
bool MoveChapterUp(const QString& name);
bool MoveChapterDown(const QString& name);

} // namespace GeneralModule
