// SPDX-License-Identifier: MIT
#include "catalogue/frmLoadFiles.h"
#include "ui_frmLoadFiles.h"

#include "catalogue/PictureCards.h"
#include "catalogue/PictureLoading.h"
#include "catalogue/UndoWindow.h"
#include "catalogue/frmTakeFromFiles.h"
#include "core/Settings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/files/FolderListing.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FolderChooser.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"

#include <QFileInfo>
#include <QMenu>
#include <QScopeGuard>

#include <algorithm>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(820, 560);

const QString section = QStringLiteral("User");
const QString folderKey = QStringLiteral("LastLoadFolder");

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
    ui_->cmdDescribeNew->setIcon(ThemedIcon(QStringLiteral("index-pictures")));
    ui_->cmdLoadMarked->setIcon(ThemedIcon(QStringLiteral("load-pictures")));
    ui_->lblDetails->hide();
    ui_->cmdDescribeNew->hide();
    ui_->cmdLoadMarked->setEnabled(false);
    RunGuarded([this] { Form_Load(); });
    new UndoWindow(this, [this] {
        ui_->lblDetails->hide();
        ui_->cmdDescribeNew->hide();
        ShowCount();
    });
    chooser_->Connect(this, &frmLoadFiles::drvPicturesToLoad_Change,
                      &frmLoadFiles::dirPicturesToLoad_Change);
    connect(ui_->txtPictureTypes, &QLineEdit::textChanged, this,
            Guarded(this, &frmLoadFiles::txtPictureTypes_Change));
    connect(ui_->cmdLoad, &QPushButton::clicked, this, Guarded(this, &frmLoadFiles::cmdLoad_Click));
    connect(ui_->cmdLoadMarked, &QPushButton::clicked, this,
            Guarded(this, &frmLoadFiles::cmdLoadMarked_Click));
    connect(ui_->cmdDescribeNew, &QPushButton::clicked, this,
            Guarded(this, &frmLoadFiles::cmdDescribeNew_Click));
    connect(
        ui_->filPicturesToLoad->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this] { ui_->cmdLoadMarked->setEnabled(!ui_->filPicturesToLoad->GetMarked().isEmpty()); });
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::close);
}

frmLoadFiles::~frmLoadFiles() = default;

void frmLoadFiles::Form_Load()
{
    ui_->txtPictureTypes->setText(ui_->filPicturesToLoad->GetPattern());
    OfferKinds();
    const QString last = GetUserSetting(section, folderKey);
    ui_->dirPicturesToLoad->SetPath(QFileInfo(last).isDir() ? last : UsersPictureFolder());
    dirPicturesToLoad_Change();
}

// What the box holds at first, and every kind that the program reads.
void frmLoadFiles::OfferKinds()
{
    auto* menu = new QMenu(ui_->txtPictureTypes);
    for (const QString& patterns : {ui_->filPicturesToLoad->GetPattern(), readablePictures})
        connect(menu->addAction(patterns), &QAction::triggered, ui_->txtPictureTypes,
                [this, patterns] { ui_->txtPictureTypes->setText(patterns); });
    QAction* kinds = ui_->txtPictureTypes->addAction(ThemedIcon(QStringLiteral("next-pictures")),
                                                     QLineEdit::TrailingPosition);
    kinds->setToolTip(tr("Usual picture file types"));
    connect(kinds, &QAction::triggered, menu, [this, menu] {
        menu->popup(ui_->txtPictureTypes->mapToGlobal(ui_->txtPictureTypes->rect().bottomLeft()));
    });
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
    if (const std::optional<PictureFiles> files = FindFiles())
        Load(*files);
}

void frmLoadFiles::cmdLoadMarked_Click()
{
    PictureFiles files;
    AddPictureFiles(files, ui_->filPicturesToLoad->GetPath(), ui_->filPicturesToLoad->GetMarked(),
                    ui_->filPicturesToLoad->GetPattern());
    Load(files);
}

std::optional<PictureFiles> frmLoadFiles::FindFiles()
{
    const FileList& list = *ui_->filPicturesToLoad;
    if (!ui_->chkFolders->isChecked()) {
        PictureFiles files;
        AddPictureFiles(files, list.GetPath(), list.GetAllNames(), list.GetPattern());
        return files;
    }
    const BusyPointer busy;
    ui_->lblFeedback->setText(tr("Loading pictures..."));
    ui_->progress->Begin(0, true);
    const auto end = qScopeGuard([this] { ui_->progress->End(); });
    std::optional<PictureFiles> files =
        FindPictureFiles(list.GetPath(), list.GetPattern(),
                         [this](int found) { return ui_->progress->Advance(found); });
    if (!files)
        ShowCount();
    return files;
}

void frmLoadFiles::Load(const PictureFiles& files)
{
    LoadFiles(files);
    if (ui_->chkTakeFromFiles->isChecked() && !loaded_.empty())
        TakeFromFiles();
}

void frmLoadFiles::LoadFiles(const PictureFiles& files)
{
    const BusyPointer busy;
    ui_->lblFeedback->setText(tr("Loading pictures..."));
    ui_->lblDetails->hide();
    const QStringList names = ui_->filPicturesToLoad->GetNames();
    const bool isList = files.byFolder.value(ui_->filPicturesToLoad->GetPath()) == names;
    const qint32 before = LastPictureId();
    ui_->progress->Begin(files.count, true);
    int loaded = 0;
    {
        const auto end = qScopeGuard([&] { ui_->progress->End(); });
        loaded = LoadPictures(files.byFolder, [&](int done) {
            const bool goOn = ui_->progress->Advance(done);
            if (isList && ui_->progress->HasShown())
                ui_->filPicturesToLoad->SelectRow(done - 1);
            return goOn;
        });
    }
    if (isList)
        ui_->filPicturesToLoad->SelectRow(std::min(loaded, int(names.size())) - 1);
    loaded_ = PictureIdsAfter(before);
    SaveUserSetting(section, folderKey, ui_->filPicturesToLoad->GetPath());
    TellWhatWasLoaded(files, loaded);
}

void frmLoadFiles::TellWhatWasLoaded(const PictureFiles& files, int loaded)
{
    const int added = int(loaded_.size());
    ui_->lblFeedback->setText(tr("%n picture(s) loaded", nullptr, loaded));
    QStringList parts{tr("%n new", nullptr, added)};
    if (loaded > added)
        parts += tr("%n there already", nullptr, loaded - added);
    if (files.otherKinds > 0)
        parts += tr("%n pictures of other kinds left out", nullptr, files.otherKinds);
    ui_->lblDetails->setText(parts.join(QStringLiteral(", ")));
    ui_->lblDetails->show();
    ui_->cmdDescribeNew->setVisible(DescribePictures && added > 0);
    if (!files.unreadable.isEmpty())
        Tell(files.unreadable.join(u'\n'), Dialogs::Icon::Warning);
}

void frmLoadFiles::TakeFromFiles()
{
    frmTakeFromFiles window(this);
    window.Pictures = loaded_;
    window.exec();
}

void frmLoadFiles::cmdDescribeNew_Click()
{
    DescribePictures(this, loaded_);
}
