// SPDX-License-Identifier: MIT
#include "story/ParagraphEdit.h"

void ParagraphEdit::Load(const ParagraphContent& loaded, const ParagraphContent& shown)
{
    loaded_ = loaded;
    shown_ = shown;
    isLoaded_ = true;
}

ParagraphDraft ParagraphEdit::GetDraft(const ParagraphContent& inControls) const
{
    ParagraphDraft draft{loaded_, inControls};
    if (draft.edited.text == shown_.text)
        draft.edited.text = loaded_.text;
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (draft.edited.values[column] == shown_.values[column])
            draft.edited.values[column] = loaded_.values[column];
    }
    return draft;
}

std::optional<ParagraphContent> ParagraphEdit::FindConflict(qint32 paragraph,
                                                            const ParagraphDraft& draft) const
{
    if (draft.edited == draft.shown)
        return std::nullopt;
    const ParagraphContent stored = LoadParagraph(paragraph);
    return HasConflict(draft, stored) ? std::optional(stored) : std::nullopt;
}

ParagraphContent ParagraphEdit::TakeSaved(qint32 paragraph, const ParagraphContent& inControls)
{
    ParagraphContent saved = LoadParagraph(paragraph);
    loaded_ = saved;
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (StorableFilter(inControls.values[column]) == StorableFilter(saved.values[column]))
            saved.values[column] = inControls.values[column];
    }
    return saved;
}
