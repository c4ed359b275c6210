// SPDX-License-Identifier: MIT
// The part of the paragraph editor that saves what was written, and asks where it must not lose
// what another window wrote.
#include "core/EditConflict.h"
#include "platform/dialogs/Dialogs.h"
#include "story/frmEditParagraph.h"
#include "ui_frmEditParagraph.h"

ParagraphContent frmEditParagraph::GetContent() const
{
    return {ToStoredMarkers(ui_->txtParagraph->GetText(), markers_), ui_->filterPanel->GetValues()};
}

// As the text box shows it.
QString frmEditParagraph::Describe(const ParagraphContent& content) const
{
    return DescribeContent({ToDisplayMarkers(content.text, markers_), content.values});
}

// A part that nobody has touched is the same as it was loaded, whatever the controls make of it.
ParagraphDraft frmEditParagraph::GetDraft() const
{
    ParagraphDraft draft{loaded_, GetContent()};
    if (draft.edited.text == shown_.text)
        draft.edited.text = loaded_.text;
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (draft.edited.values[column] == shown_.values[column])
            draft.edited.values[column] = loaded_.values[column];
    }
    return draft;
}

bool frmEditParagraph::SaveParagraph()
{
    if (!isShown_ || CurrentParagraph <= 0)
        return true;
    if (!SettleConflict())
        return false;
    ::SaveParagraph(GetPlace(), GetDraft());
    ShowSaved();
    return true;
}

bool frmEditParagraph::SettleConflict()
{
    const ParagraphDraft draft = GetDraft();
    if (draft.edited == draft.shown)
        return true;
    const ParagraphContent stored = LoadParagraph(CurrentParagraph);
    if (!HasConflict(draft, stored))
        return true;
    using GeneralModule::ConflictChoice;
    const ConflictChoice choice = GeneralModule::AskAboutConflict(
        tr("This paragraph"), Describe(draft.edited), Describe(stored));
    if (choice == ConflictChoice::Stay)
        return false;
    const ParagraphContent merged = MergeDraft(draft, stored, choice == ConflictChoice::KeepMine);
    ShowContent(stored);
    SetControls(merged);
    return true;
}

// What another window has written to other parts meanwhile is shown too. A filter that waits for
// its first value goes on waiting.
void frmEditParagraph::ShowSaved()
{
    const ParagraphContent edited = GetContent();
    ParagraphContent saved = LoadParagraph(CurrentParagraph);
    loaded_ = saved;
    for (std::size_t column = 0; column < columnCount; ++column) {
        if (StorableFilter(edited.values[column]) == StorableFilter(saved.values[column]))
            saved.values[column] = edited.values[column];
    }
    if (edited.text != saved.text || edited.values != saved.values)
        SetControls(saved);
    shown_ = GetContent();
}

bool frmEditParagraph::ConfirmDeletion()
{
    const auto ask = [](const QString& question, Dialogs::Icon icon) {
        return Dialogs::Door().Ask({question, icon, Dialogs::Buttons::OkCancel}) ==
               Dialogs::Answer::Ok;
    };
    if (!ask(tr("Are you sure you want to DELETE current paragraph ?"), Dialogs::Icon::Question))
        return false;
    const ParagraphContent stored = LoadParagraph(CurrentParagraph);
    return stored == loaded_ ||
           ask(tr("This paragraph was changed in another window after it was opened here.\n\n"
                  "The other version:\n%1\n\nDelete it all the same?")
                   .arg(Describe(stored)),
               Dialogs::Icon::Warning);
}

// However the window is left, by its frame too.
void frmEditParagraph::reject()
{
    if (SaveOrGiveUp())
        QDialog::reject();
}

// What cannot be saved is not thrown away without asking.
bool frmEditParagraph::SaveOrGiveUp()
{
    try {
        return SaveParagraph();
    } catch (const std::exception& error) {
        return Dialogs::Door().Ask({tr("The paragraph cannot be saved: %1\n\nLeave without saving?")
                                        .arg(QString::fromUtf8(error.what())),
                                    Dialogs::Icon::Warning, Dialogs::Buttons::YesNo,
                                    Dialogs::Answer::No}) == Dialogs::Answer::Yes;
    }
}
