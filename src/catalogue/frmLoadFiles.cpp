// SPDX-License-Identifier: MIT
#include "catalogue/frmLoadFiles.h"
#include "ui_frmLoadFiles.h"

#include "catalogue/PictureLoading.h"
#include "platform/dialogs/Guard.h"
#include "platform/files/FolderListing.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FolderChooser.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"

#include <QScopeGuard>

namespace {

constexpr QSize proposedSize(820, 560);

} // namespace

frmLoadFiles::frmLoadFiles(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmLoadFiles>())
{
    ui_->setupUi(this);
    chooser_ = std::make_unique<FolderChooser>(ui_->drvPicturesToLoad, ui_->dirPicturesToLoad,
                                               ui_->filPicturesToLoad);
    KeepWindowSize(this, proposedSize);
    ui_->cmdLoad->setIcon(ThemedIcon(QStringLiteral("load-pictures")));
    ui_->cmdCancel->setIcon(ThemedIcon(QStringLiteral("exit")));
    RunGuarded([this] { Form_Load(); });
    chooser_->Connect(this, &frmLoadFiles::drvPicturesToLoad_Change,
                      &frmLoadFiles::dirPicturesToLoad_Change);
    connect(ui_->txtPictureTypes, &QLineEdit::textChanged, this,
            Guarded(this, &frmLoadFiles::txtPictureTypes_Change));
    connect(ui_->cmdLoad, &QPushButton::clicked, this, Guarded(this, &frmLoadFiles::cmdLoad_Click));
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::close);
}

frmLoadFiles::~frmLoadFiles() = default;

void frmLoadFiles::Form_Load()
{
    ui_->txtPictureTypes->setText(ui_->filPicturesToLoad->GetPattern());
    ui_->dirPicturesToLoad->SetPath(UsersPictureFolder());
    dirPicturesToLoad_Change();
}

void frmLoadFiles::ShowCount()
{
    ui_->lblFeedback->setText(
        tr("%n picture(s) selected", nullptr, ui_->filPicturesToLoad->Count()));
}

void frmLoadFiles::drvPicturesToLoad_Change()
{
    chooser_->FollowDrive();
    ShowCount();
}

void frmLoadFiles::dirPicturesToLoad_Change()
{
    chooser_->FollowFolder();
    ShowCount();
}

void frmLoadFiles::txtPictureTypes_Change()
{
    ui_->filPicturesToLoad->SetPattern(ui_->txtPictureTypes->text());
    ShowCount();
}

void frmLoadFiles::cmdLoad_Click()
{
    const BusyPointer busy;
    ui_->lblFeedback->setText(tr("Loading pictures..."));
    const QStringList names = ui_->filPicturesToLoad->GetNames();
    ui_->progress->Begin(int(names.size()), true);
    int loaded = 0;
    {
        const auto end = qScopeGuard([this] { ui_->progress->End(); });
        loaded = LoadPictures(ui_->filPicturesToLoad->GetPath(), names, [this](int done) {
            const bool goOn = ui_->progress->Advance(done);
            if (ui_->progress->HasShown())
                ui_->filPicturesToLoad->SelectRow(done - 1);
            return goOn;
        });
    }
    ui_->filPicturesToLoad->SelectRow(loaded - 1);
    ui_->lblFeedback->setText(tr("%n picture(s) loaded", nullptr, loaded));
}
