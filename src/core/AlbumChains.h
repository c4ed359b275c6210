// SPDX-License-Identifier: MIT
#pragma once

#include "core/Chain.h"

// The chains of the open album. All of it throws DatabaseError NoAlbum while none is open.
namespace GeneralModule {

// Over ChapterSet: the story from its first chapter on.
Chain ChainOfChapters();

// Over ParagraphSet: the paragraphs of each chapter.
Chain ChainOfParagraphs();

// The paragraph that a chapter begins with, where ParagraphSet then stands; 0 for none. ChapterSet
// stands on the chapter, if there is one of that identifier.
qint32 FirstParagraphOf(qint32 chapter);

// Nothing happens when there is no such chapter.
void SetFirstParagraph(qint32 chapter, qint32 paragraph);

} // namespace GeneralModule
