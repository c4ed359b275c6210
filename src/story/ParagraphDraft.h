// SPDX-License-Identifier: MIT
#pragma once

#include "story/Paragraph.h"

#include <QString>
#include <QStringList>

// A person's edit of a paragraph. Another window may change the paragraph too, so only what differs
// from what was shown is written.
struct ParagraphDraft
{
    ParagraphContent shown;
    ParagraphContent edited;
};

// Whether a part was edited here and changed differently in the album.
bool HasConflict(const ParagraphDraft& draft, const ParagraphContent& stored);

// Applies the edit to the stored content. A part in conflict is taken from the draft if
// prefersEdited, else from stored.
ParagraphContent MergeDraft(const ParagraphDraft& draft, const ParagraphContent& stored,
                            bool prefersEdited);

// The text's beginning and the filter's restrictions, so that a person can tell two versions apart.
QString DescribeContent(const ParagraphContent& content);
