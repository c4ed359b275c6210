// SPDX-License-Identifier: MIT
#include "catalogue/frmReloadPictures.h"
#include "ui_frmReloadPictures.h"

#include "catalogue/MovedPictures.h"
#include "catalogue/UndoWindow.h"
#include "catalogue/frmMissingPictures.h"
#include "core/AlbumPaths.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/files/FolderListing.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FolderChooser.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"

#include <QFileInfo>
#include <QHash>
#include <QScopeGuard>

#include <algorithm>

namespace {

constexpr QSize proposedSize(880, 560);

} // namespace

frmReloadPictures::frmReloadPictures(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmReloadPictures>())
{
    ui_->setupUi(this);
    chooser_ =
        std::make_unique<FolderChooser>(ui_->drvNewReferences, ui_->dirNewReferences, nullptr);
    KeepWindowSize(this, proposedSize);
    ui_->cmdReloadPictures->setIcon(ThemedIcon(QStringLiteral("refresh")));
    ui_->cmdCancel->setIcon(ThemedIcon(QStringLiteral("exit")));
    connect(ui_->lstOldReferences, &QListWidget::currentRowChanged, this,
            Guarded(this, &frmReloadPictures::lstOldReferences_Click));
    RunGuarded([this] { Form_Load(); });
    new UndoWindow(this, [this] {
        ShowFolders();
        ui_->lstOldReferences->setCurrentRow(0);
    });
    chooser_->Connect(this, &frmReloadPictures::drvNewReferences_Change,
                      &frmReloadPictures::dirNewReferences_Change);
    connect(ui_->cmdReloadPictures, &QPushButton::clicked, this,
            Guarded(this, &frmReloadPictures::cmdReloadPictures_Click));
    connect(ui_->cmdMissing, &QPushButton::clicked, this,
            Guarded(this, &frmReloadPictures::cmdMissing_Click));
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::close);
}

frmReloadPictures::~frmReloadPictures() = default;

void frmReloadPictures::Form_Load()
{
    const BusyPointer busy;
    if (newFolder_.isEmpty()) {
        const QString folder = UsersPictureFolder();
        ui_->drvNewReferences->ShowVolumeOf(folder);
        ui_->dirNewReferences->SetPath(folder);
    }
    ShowFolders();
    ui_->lstOldReferences->setCurrentRow(0);
}

// Those that are gone are marked, since they are the ones to look for.
void frmReloadPictures::ShowFolders()
{
    ui_->lstOldReferences->clear();
    QHash<QString, bool> isThere;
    for (const QString& folder : PictureFolders()) {
        auto* item = new QListWidgetItem(folder, ui_->lstOldReferences);
        if (!isThere.contains(folder))
            isThere.insert(folder, QFileInfo(GeneralModule::AbsolutePath(folder)).isDir());
        if (isThere.value(folder))
            continue;
        QFont font = ui_->lstOldReferences->font();
        font.setBold(true);
        item->setFont(font);
        item->setToolTip(tr("This folder is gone"));
    }
}

void frmReloadPictures::lstOldReferences_Click()
{
    ui_->lblFeedback->clear();
    if (const QListWidgetItem* item = ui_->lstOldReferences->currentItem())
        ui_->lblOldReferences->setText(item->text() + QStringLiteral("*.*"));
}

void frmReloadPictures::drvNewReferences_Change()
{
    ui_->lblFeedback->clear();
    chooser_->FollowDrive();
}

void frmReloadPictures::dirNewReferences_Change()
{
    ui_->lblFeedback->clear();
    chooser_->FollowFolder();
    newFolder_ = ui_->dirNewReferences->GetPath();
    ui_->lblNewReferences->setText(PathIn(newFolder_, QStringLiteral("*.*")));
}

void frmReloadPictures::ShowUpdated(const RepointedPictures& done)
{
    QString text = tr("%n picture references updated", nullptr, done.updated);
    if (done.alreadyHeld > 0)
        text += QLatin1Char('\n') + tr("%n already in the album", nullptr, done.alreadyHeld);
    if (done.linksLeft > 0)
        text += QLatin1Char('\n') +
                tr("%n links made by hand keep the old path", nullptr, done.linksLeft);
    ui_->lblFeedback->setText(text);
    ui_->lblFeedback->repaint();
}

void frmReloadPictures::cmdReloadPictures_Click()
{
    const QListWidgetItem* old = ui_->lstOldReferences->currentItem();
    if (!old)
        return;
    if (newFolder_.isEmpty())
        return Tell(tr("Please choose the new folder first: double click on it."),
                    Dialogs::Icon::Warning);
    const BusyPointer busy;
    ShowUpdated({});
    ui_->progress->Begin(0, true);
    const auto end = qScopeGuard([this] { ui_->progress->End(); });
    const int row = ui_->lstOldReferences->currentRow();
    const QString folder = old->text();
    const RepointedPictures done = RepointPictures(folder, newFolder_, [this](int count) {
        const bool goOn = ui_->progress->Advance(count);
        if (ui_->progress->HasShown())
            ShowUpdated({.updated = count});
        return goOn;
    });
    ShowFolders();
    const auto left = ui_->lstOldReferences->findItems(folder, Qt::MatchExactly);
    if (left.isEmpty())
        ui_->lstOldReferences->setCurrentRow(std::min(row, ui_->lstOldReferences->count() - 1));
    else
        ui_->lstOldReferences->setCurrentItem(left.front());
    ShowUpdated(done);
}

void frmReloadPictures::cmdMissing_Click()
{
    frmMissingPictures window(this);
    window.ShowPictures = ShowPictures;
    window.exec();
    Form_Load();
}
