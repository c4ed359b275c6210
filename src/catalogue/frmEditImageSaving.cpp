// SPDX-License-Identifier: MIT
// The part of the indexing window that saves what was typed, and asks where it must not lose what
// another window wrote.
#include "catalogue/frmEditImage.h"
#include "core/EditConflict.h"
#include "platform/data/DatabaseError.h"
#include "platform/dialogs/Dialogs.h"
#include "ui_frmEditImage.h"

using namespace GeneralModule;

PictureRecord frmEditImage::ControlValues() const
{
    PictureRecord record{ui_->txtLegend->text(), {}};
    for (std::size_t column = 0; column < columnCount; ++column)
        record.values[column] = cboCategory_[column]->currentText();
    return record;
}

// What nobody has touched is as it was shown, whatever a control of one line makes of it.
PictureRecord frmEditImage::GetRecord() const
{
    return MergeRecord(controls_, ControlValues(), shown_, true);
}

// False when the user wants to stay.
bool frmEditImage::SettleConflict()
{
    const PictureRecord edited = GetRecord();
    if (edited == shown_)
        return true;
    const PictureRecord stored = ReadPictureRecord(CurrentImage).value_or(shown_);
    if (!HasConflict(shown_, edited, stored))
        return true;
    const ConflictChoice choice =
        AskAboutConflict(tr("This picture"), DescribeRecord(edited), DescribeRecord(stored));
    if (choice == ConflictChoice::Stay)
        return false;
    const PictureRecord merged =
        MergeRecord(shown_, edited, stored, choice == ConflictChoice::KeepMine);
    ShowStored(stored);
    ShowRecord(merged);
    return true;
}

bool frmEditImage::SavePicture()
{
    if (CurrentImage.isEmpty() || !isKnown_)
        return true;
    if (!SettleConflict())
        return false;
    const PictureRecord saved = SavePictureRecord(CurrentImage, shown_, GetRecord());
    for (int column = 0; column < columnCount; ++column) {
        const QString& value = saved.values[std::size_t(column)];
        if (value != shown_.values[std::size_t(column)])
            OfferValue(column, value);
    }
    ShowStored(saved);
    return true;
}

// Every way out leads through here.
void frmEditImage::reject()
{
    if (SaveBeforeLeaving())
        QDialog::reject();
}

bool frmEditImage::SaveBeforeLeaving()
{
    try {
        return SavePicture();
    } catch (const DatabaseError& error) {
        const Dialogs::Answer answer = Dialogs::Door().Ask(
            {.text = error.GetDescription() + QLatin1Char('\n') +
                     tr("The picture could not be saved. Leave without saving ?"),
             .icon = Dialogs::Icon::Warning,
             .buttons = Dialogs::Buttons::YesNo,
             .defaultAnswer = Dialogs::Answer::No});
        return answer == Dialogs::Answer::Yes;
    }
}
