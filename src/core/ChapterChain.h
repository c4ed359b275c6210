// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// The chapters of the open album, linked in reading order by PreviousChapter and NextChapter (0 =
// none). Chapters are found by name; no identifier is kept between two operations. The rows that
// one operation changes are committed together, all or none. All routines move the current row of
// ChapterSet, and throw DatabaseError, NoAlbum while no album is open.
namespace GeneralModule {

struct Chapter
{
    qint32 id = 0;
    QString title; // as it is listed
};

// The chapters from the first one on, along NextChapter. The list ends at a link to no chapter or
// back to one already listed; chapters that the first one does not lead to are not in it. A chapter
// whose name is missing or not valid text is listed as "(no name)", the next one as "(no name 2)",
// and can be found by that.
std::vector<Chapter> Chapters();
QStringList ChapterNames(); // their titles

// The name of one chapter as it is listed; empty when there is no such chapter.
QString ChapterTitle(qint32 chapter);

// A name begins with a letter from A to Z, in upper case, or a digit.
bool IsChapterName(const QString& name);

// Identifier of the chapter of that name; none when there is no such chapter. ChapterSet stands on
// its row.
std::optional<qint32> FindChapter(const QString& name);

// Adds an empty chapter after the named one, or as the first when `after` is empty. Links forward
// only: the chapter that followed keeps its PreviousChapter. Returns the new identifier. Throws
// DatabaseError, DuplicateKey for a name that an unlisted chapter has.
qint32 CreateChapter(const QString& name, const QString& after);

// False, and nothing changed, when the chapter is not in the album any more. Throws DatabaseError,
// DuplicateKey for a name that another chapter has.
bool RenameChapter(qint32 chapter, const QString& newName);

// The chapter that the reading order begins with, where ChapterSet then stands; 0 when there is
// none.
qint32 FirstChapter();

// Whether the album has it. Moves ChapterSet there.
bool HasChapter(qint32 chapter);

// The chapter before it in reading order, 0 for the first one. That is the chapter whose link leads
// here, not always the one in its own PreviousChapter, which counts only if the reading order does
// not reach the chapter.
qint32 ChapterLeadingTo(qint32 chapter);

// The chapter after it, 0 when there is none.
qint32 NextChapter(qint32 chapter);

enum class ChapterDeletion { Deleted, HasParagraphs, NotFound };
ChapterDeletion DeleteChapter(const QString& name);

// Exchanges the chapter with the one before or after it. False, and nothing changed, when there is
// none.
bool MoveChapterUp(const QString& name);
bool MoveChapterDown(const QString& name);
// Does the same as often, down or, for a negative number of places, up; it stops at the end of the
// list. False, and nothing changed, when the chapter cannot be moved that way at all or is not
// listed.
bool MoveChapterBy(const QString& name, int places);

} // namespace GeneralModule
