// SPDX-License-Identifier: MIT
#pragma once

#include "story/Paragraph.h"

#include <QString>
#include <QStringList>

// What a person makes of a paragraph. Another window may change the paragraph meanwhile, so only
// what differs from what was shown is written.
struct ParagraphDraft
{
    ParagraphContent shown;
    ParagraphContent edited;
};

// Whether a part was edited here and meanwhile changed to something else in the album.
bool HasConflict(const ParagraphDraft& draft, const ParagraphContent& stored);

// What was edited laid over what is stored. A part in conflict is taken from the draft where
// prefersEdited, else as it is stored.
ParagraphContent MergeDraft(const ParagraphDraft& draft, const ParagraphContent& stored,
                            bool prefersEdited);

// For a person to tell two versions apart: how the text begins, and the filter's restrictions after
// it.
QString DescribeContent(const ParagraphContent& content);
