// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphChain.h"

// Creates a paragraph without text that has this filter, after another one of the chapter or, for
// 0, as its first. All rows or none are written. Throws DatabaseError, RecordDeleted when that one
// is not there.
ParagraphPlace InsertParagraph(qint32 chapter, qint32 after, const CarValues& filter);
