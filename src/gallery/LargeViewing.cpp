// SPDX-License-Identifier: MIT
#include "gallery/LargeViewing.h"

#include "core/LocalCopy.h"
#include "gallery/ContactSheet.h"
#include "gallery/SheetPicture.h"
#include "platform/dialogs/Guard.h"

using GeneralModule::FindPictureFile;

LargeViewing::LargeViewing(ContactSheet& sheet, const SheetModel& model)
    : QObject(&sheet), sheet_(sheet), model_(model)
{
}

// It belongs to the window, which may stay.
LargeViewing::~LargeViewing()
{
    delete picture_;
}

void LargeViewing::Open()
{
    if (!sheet_.currentIndex().isValid())
        return;
    if (!picture_) {
        picture_ = new SheetPicture(sheet_.window());
        connect(picture_, &SheetPicture::StepWanted, this, &LargeViewing::Step);
        connect(picture_, &SheetPicture::BackWanted, this, &LargeViewing::Close);
    }
    Show(1);
}

// The step tells where the user is going.
void LargeViewing::Show(int step)
{
    RunGuarded([&] {
        const int row = sheet_.currentIndex().row();
        const QString file = model_.CardAt(row).file;
        picture_->Show(file, FindPictureFile(file), model_.CaptionAt(row));
        const QString next = model_.CardAt(row + step).file;
        picture_->Expect(next.isEmpty() ? QString() : FindPictureFile(next));
    });
}

void LargeViewing::Step(int step)
{
    const QModelIndex next = model_.index(sheet_.currentIndex().row() + step);
    if (!next.isValid())
        return;
    // A selection of several is not lost by looking at them.
    const auto command = sheet_.GetSelected().size() > 1 ? QItemSelectionModel::NoUpdate
                                                         : QItemSelectionModel::ClearAndSelect;
    sheet_.selectionModel()->setCurrentIndex(next, command);
    Show(step);
}

void LargeViewing::Close()
{
    if (!picture_)
        return;
    picture_->hide();
    picture_->deleteLater();
    picture_ = nullptr;
    sheet_.setFocus();
}
