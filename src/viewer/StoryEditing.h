// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;
class StoryReader;

// The windows that change what a reader shows. They open modally in front of the given window, and
// autoview waits meanwhile.

// Opens the paragraph editor on the reader's paragraph, which an empty chapter is given first, and
// follows it to where the user went. A selection has no paragraph to edit.
void EditParagraph(StoryReader& reader, QWidget* window);

// Shows what the album holds after an undo: the same page, else the nearest one; ends the reading
// where the chapter is gone.
void ShowAfterUndo(StoryReader& reader);

// Opens the window that finds pictures, which can be linked to the reader's paragraph.
void FindForReader(StoryReader& reader, QWidget* window);

// Links a picture of the album to the paragraph, or unlinks it. Returns what has become of it, for
// the reader, or why nothing has: there is no paragraph (0), no file, or the album is read-only.
// Throws DatabaseError.
QString SwitchLink(qint32 paragraph, const QString& file);

// Opens the indexing window on one of the pictures on the screen, with those that come after it.
void IndexPicture(StoryReader& reader, const QString& file, QWidget* window);
