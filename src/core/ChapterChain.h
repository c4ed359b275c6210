// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The chapters of the open album, linked in reading order by PreviousChapter and NextChapter (0 =
// none). Chapters are found by name; nothing remembers their identifiers between two operations.
// Each row is committed by itself: an error half way leaves the rows changed so far as they are.
namespace GeneralModule {

// Names from the first chapter on, along NextChapter. A link to no chapter, or back to one that was
// listed, ends the list; chapters that the first one does not lead to are not in it.
QStringList ChapterNames();

// A name begins with a letter from A to Z, in upper case, or a digit.
bool IsChapterName(const QString& name);

// Identifier of the chapter of that name; none when there is no such chapter. ChapterSet stands on
// its row.
std::optional<qint32> FindChapter(const QString& name);

// Adds an empty chapter behind the one named after, or as the first when that is empty. Links
// forward only: the chapter that followed keeps its PreviousChapter. Returns the new identifier.
// Throws DatabaseError, DuplicateKey for a name that an unlisted chapter has.
qint32 CreateChapter(const QString& name, const QString& after);

// Nothing happens when there is no chapter of that name.
void RenameChapter(const QString& name, const QString& newName);

enum class ChapterDeletion { Deleted, HasParagraphs, NotFound };
ChapterDeletion DeleteChapter(const QString& name);

// Exchanges the chapter with the one before or after it. False, and nothing changed, when there is
// none.
bool MoveChapterUp(const QString& name);
bool MoveChapterDown(const QString& name);

} // namespace GeneralModule
