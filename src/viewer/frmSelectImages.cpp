// SPDX-License-Identifier: MIT
#include "viewer/frmSelectImages.h"
#include "ui_frmSelectImages.h"

#include "catalogue/UndoWindow.h"
#include "core/Parameters.h"
#include "platform/dialogs/Guard.h"
#include "platform/files/FolderListing.h"
#include "platform/files/PathRoutines.h"
#include "platform/shell/ProgramFolder.h"
#include "platform/widgets/FolderChooser.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"
#include "viewer/ViewerFlags.h"

namespace {

constexpr QSize proposedSize(820, 560);

// The folder of the selection, which may have gone since it was made. The program's own, which a
// new album begins with, holds no pictures.
QString FolderToBeginWith(const QString& selection)
{
    const QString folder = FolderOf(selection);
    const bool isUseful =
        !folder.isEmpty() && QDir(folder).exists() && QDir(folder) != QDir(ProgramFolder());
    return isUseful ? folder : UsersPictureFolder();
}

} // namespace

frmSelectImages::frmSelectImages(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmSelectImages>())
{
    ui_->setupUi(this);
    chooser_ = std::make_unique<FolderChooser>(ui_->drvPicturesToSelect, ui_->dirPicturesToSelect,
                                               ui_->filPicturesToSelect);
    KeepWindowSize(this, proposedSize);
    ui_->cmdSelect->setIcon(ThemedIcon(QStringLiteral("preview")));
    ui_->cmdCancel->setIcon(ThemedIcon(QStringLiteral("exit")));
    chooser_->Connect(this, &frmSelectImages::drvPicturesToSelect_Change,
                      &frmSelectImages::dirPicturesToSelect_Change);
    connect(ui_->txtPictureTypes, &QLineEdit::textChanged, this,
            Guarded(this, &frmSelectImages::txtPictureTypes_Change));
    connect(ui_->cmdSelect, &QPushButton::clicked, this,
            Guarded(this, &frmSelectImages::cmdSelect_Click));
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmSelectImages::cmdCancel_Click);
    new UndoWindow(this);
}

frmSelectImages::~frmSelectImages() = default;

void frmSelectImages::showEvent(QShowEvent* event)
{
    if (!event->spontaneous() && !RunGuarded([this] { Form_Load(); }))
        ui_->dirPicturesToSelect->SetPath(UsersPictureFolder());
    QDialog::showEvent(event);
}

void frmSelectImages::Form_Load()
{
    if (FileSelection.isEmpty())
        FileSelection = GeneralModule::GetLastFileSelection();
    ui_->txtPictureTypes->setText(ui_->filPicturesToSelect->GetPattern());
    ui_->dirPicturesToSelect->SetPath(FolderToBeginWith(FileSelection));
}

void frmSelectImages::drvPicturesToSelect_Change()
{
    chooser_->FollowDrive();
}

void frmSelectImages::dirPicturesToSelect_Change()
{
    chooser_->FollowFolder();
}

void frmSelectImages::txtPictureTypes_Change()
{
    ui_->filPicturesToSelect->SetPattern(ui_->txtPictureTypes->text());
}

void frmSelectImages::cmdSelect_Click()
{
    FileSelection =
        PathIn(ui_->dirPicturesToSelect->GetPath(), ui_->filPicturesToSelect->GetPattern());
    GeneralModule::SetLastFileSelection(FileSelection);
    GeneralModule::PictureAtRandom = ui_->chkAtRandom->isChecked();
    accept();
}

void frmSelectImages::cmdCancel_Click()
{
    reject();
}

// Also when the window is closed in any other way.
void frmSelectImages::reject()
{
    FileSelection.clear();
    QDialog::reject();
}
