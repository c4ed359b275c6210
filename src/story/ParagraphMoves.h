// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphChain.h"

#include <QString>

#include <vector>

// Moving paragraphs within a chapter and across its ends, for a place whose paragraph is in the
// place's chapter. Rows of one move are committed together.

// Exchanges the paragraph with the next or the previous one; at its chapter's end or beginning, it
// becomes the first of the next chapter or the last of the previous one, and the place follows it
// there. False, and nothing changed, where there is no such chapter.
bool MoveParagraphDown(ParagraphPlace& place);
bool MoveParagraphUp(ParagraphPlace& place);

struct ParagraphLine
{
    qint32 paragraph;
    QString text; // in display form and in one line, which may be cut off
};

// The chapter's paragraphs in their order.
std::vector<ParagraphLine> ListParagraphs(qint32 chapter);
