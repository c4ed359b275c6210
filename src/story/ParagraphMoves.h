// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphChain.h"

#include <QString>

#include <vector>

// Moving paragraphs within a chapter and across its ends. The place's paragraph must be in the
// place's chapter. All rows of one move are committed together.
// They move the current rows of ParagraphSet and ChapterSet, and throw DatabaseError, NoAlbum while
// no album is open.

// Exchange the paragraph with the next or the previous one. At its chapter's end or beginning it
// becomes the first of the next chapter or the last of the previous one, and the place follows it.
// False, with nothing changed, when there is no such chapter.
bool MoveParagraphDown(ParagraphPlace& place);
bool MoveParagraphUp(ParagraphPlace& place);
// Does the same as often, down or, for a negative number of rows, up. False when nothing changed.
bool MoveParagraphBy(ParagraphPlace& place, int rows);

struct ParagraphLine
{
    qint32 paragraph;
    QString text; // in display form, on one line, possibly cut off
};

// The chapter's paragraphs in order.
std::vector<ParagraphLine> ListParagraphs(qint32 chapter);
