// SPDX-License-Identifier: MIT
#include "story/ParagraphDraft.h"

#include "core/EditConflict.h"

using GeneralModule::IsConflict;
using GeneralModule::MergeEdit;

namespace {

// Filters are compared as stored: a "!" that waits for its first value is no change.
bool ConflictsAt(std::size_t column, const ParagraphDraft& draft, const ParagraphContent& stored)
{
    return IsConflict(StorableFilter(draft.shown.values[column]),
                      StorableFilter(draft.edited.values[column]),
                      StorableFilter(stored.values[column]));
}

} // namespace

bool HasConflict(const ParagraphDraft& draft, const ParagraphContent& stored)
{
    bool isConflict = IsConflict(draft.shown.text, draft.edited.text, stored.text);
    for (std::size_t column = 0; column < columnCount; ++column)
        isConflict = isConflict || ConflictsAt(column, draft, stored);
    return isConflict;
}

ParagraphContent MergeDraft(const ParagraphDraft& draft, const ParagraphContent& stored,
                            bool prefersEdited)
{
    ParagraphContent merged = stored;
    merged.text = MergeEdit(draft.shown.text, draft.edited.text, stored.text, prefersEdited);
    for (std::size_t column = 0; column < columnCount; ++column) {
        const bool isEdited = draft.edited.values[column] != draft.shown.values[column];
        if (isEdited && (prefersEdited || !ConflictsAt(column, draft, stored)))
            merged.values[column] = draft.edited.values[column];
    }
    return merged;
}

QString DescribeContent(const ParagraphContent& content)
{
    constexpr qsizetype longestText = 200;
    QStringList parts{content.text.size() <= longestText
                          ? content.text
                          : content.text.first(longestText) + QStringLiteral(" ...")};
    for (const QString& value : content.values) {
        if (Restricts(value))
            parts += DescribeFilter(value);
    }
    parts.removeAll(QString());
    return parts.join(u'\n');
}
