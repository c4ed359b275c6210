// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Reading a story step by step, along the links of the open album's chapters and paragraphs. A link
// to a row that is not there counts as none, and no walk visits a row twice.

struct StoryPosition
{
    qint32 chapter = 0;   // 0: no story is read
    qint32 paragraph = 0; // 0: the chapter is empty

    bool operator==(const StoryPosition&) const = default;
};

// What is to be shown after a step.
enum class StoryStep {
    Nothing,   // the step leads nowhere; the position stays
    Paragraph, // the position's paragraph
    Chapter,   // the position's chapter from its beginning, which may be empty
    Close,     // there is nothing left to read
};

// Sets the position to the chapter's first paragraph, or to none where the chapter has none.
void GoToFirstParagraph(StoryPosition& position);

// One paragraph on; after the chapter's last to the next chapter that has paragraphs, and after the
// last chapter to the first one again. From an empty chapter on along the chapters.
StoryStep StepToNextParagraph(StoryPosition& position);

// One paragraph back; from a chapter's first, or from an empty one, to the last of the chapter
// before, also when that is empty; the story's beginning stays.
StoryStep StepToPreviousParagraph(StoryPosition& position);

// The next chapter; in the last chapter its last paragraph.
StoryStep StepToNextChapter(StoryPosition& position);

// The chapter's first paragraph, or from there the chapter before; the first chapter's stays.
StoryStep StepToTopOfChapter(StoryPosition& position);
