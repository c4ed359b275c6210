// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;
class StoryReader;

// The windows that change what a reader shows. They open modally in front of the given window, and
// autoview waits meanwhile.

// Opens the paragraph editor on the reader's paragraph, which an empty chapter is given first, and
// follows it to where the user went. A selection has no paragraph to edit.
void EditParagraph(StoryReader& reader, QWidget* window);

// Opens the window that finds pictures, which can be linked to the reader's paragraph.
void FindForReader(StoryReader& reader, QWidget* window);

// Opens the indexing window on one of the pictures on the screen, with those that come after it.
void IndexPicture(StoryReader& reader, const QString& file, QWidget* window);
