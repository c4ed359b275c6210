// SPDX-License-Identifier: MIT
#include "story/ParagraphEdit.h"

#include "core/EditConflict.h"
#include "platform/dialogs/Dialogs.h"

using GeneralModule::ConflictChoice;

void ParagraphEdit::Load(const ParagraphContent& content)
{
    controls_.show(content);
    loaded_ = content;
    shown_ = controls_.read();
    isLoaded_ = true;
}

ParagraphDraft ParagraphEdit::GetDraft() const
{
    ParagraphDraft draft{loaded_, controls_.read()};
    if (draft.edited.text == shown_.text)
        draft.edited.text = loaded_.text;
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (draft.edited.values[column] == shown_.values[column])
            draft.edited.values[column] = loaded_.values[column];
    }
    return draft;
}

bool ParagraphEdit::IsEdited() const
{
    if (!isLoaded_)
        return false;
    const ParagraphDraft draft = GetDraft();
    return draft.edited != draft.shown;
}

bool ParagraphEdit::SettleConflict(qint32 paragraph)
{
    const ParagraphDraft draft = GetDraft();
    if (draft.edited == draft.shown)
        return true;
    const ParagraphContent stored = LoadParagraph(paragraph);
    if (!HasConflict(draft, stored))
        return true;
    const ConflictChoice choice = GeneralModule::AskAboutConflict(
        tr("This paragraph"), controls_.describe(draft.edited), controls_.describe(stored));
    if (choice == ConflictChoice::Stay)
        return false;
    Load(stored);
    controls_.show(MergeDraft(draft, stored, choice == ConflictChoice::KeepMine));
    return true;
}

bool ParagraphEdit::Save(const ParagraphPlace& place)
{
    if (!isLoaded_ || place.paragraph <= 0)
        return true;
    if (!SettleConflict(place.paragraph))
        return false;
    SaveParagraph(place, GetDraft());
    ShowSaved(place.paragraph);
    return true;
}

// A filter that waits for its first value stays so.
void ParagraphEdit::ShowSaved(qint32 paragraph)
{
    const ParagraphContent edited = controls_.read();
    ParagraphContent saved = LoadParagraph(paragraph);
    loaded_ = saved;
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (StorableFilter(edited.values[column]) == StorableFilter(saved.values[column]))
            saved.values[column] = edited.values[column];
    }
    if (edited != saved)
        controls_.show(saved);
    shown_ = controls_.read();
}

bool ParagraphEdit::SaveOrGiveUp(const ParagraphPlace& place)
{
    try {
        return Save(place);
    } catch (const std::exception& error) {
        return Dialogs::Door().Ask({tr("The paragraph cannot be saved: %1\n\nLeave without saving?")
                                        .arg(QString::fromUtf8(error.what())),
                                    Dialogs::Icon::Warning, Dialogs::Buttons::YesNo,
                                    Dialogs::Answer::No}) == Dialogs::Answer::Yes;
    }
}

bool ParagraphEdit::ConfirmDeletion(qint32 paragraph) const
{
    const auto ask = [](const QString& question, Dialogs::Icon icon) {
        return Dialogs::Door().Ask({question, icon, Dialogs::Buttons::OkCancel}) ==
               Dialogs::Answer::Ok;
    };
    if (!ask(tr("Are you sure you want to DELETE current paragraph ?"), Dialogs::Icon::Question))
        return false;
    const ParagraphContent stored = LoadParagraph(paragraph);
    return stored == loaded_ ||
           ask(tr("This paragraph was changed in another window after it was opened here.\n\n"
                  "The other version:\n%1\n\nDelete it all the same?")
                   .arg(controls_.describe(stored)),
               Dialogs::Icon::Warning);
}
