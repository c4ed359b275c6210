// SPDX-License-Identifier: MIT
#include "story/ParagraphDraft.h"

#include "core/EditConflict.h"

using GeneralModule::IsConflict;

namespace {

// Filters are compared as they would be stored: one that waits for its first value is no change.
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
    const auto takesEdited = [prefersEdited](bool isEdited, bool isConflict) {
        return isEdited && (prefersEdited || !isConflict);
    };
    ParagraphContent merged = stored;
    if (takesEdited(draft.edited.text != draft.shown.text,
                    IsConflict(draft.shown.text, draft.edited.text, stored.text)))
        merged.text = draft.edited.text;
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (takesEdited(draft.edited.values[column] != draft.shown.values[column],
                        ConflictsAt(column, draft, stored)))
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
