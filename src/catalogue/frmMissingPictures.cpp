// SPDX-License-Identifier: MIT
#include "catalogue/frmMissingPictures.h"
#include "ui_frmMissingPictures.h"

#include "catalogue/FoundModel.h"
#include "catalogue/UndoWindow.h"
#include "core/Album.h"
#include "core/Settings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/files/FolderListing.h"
#include "platform/files/PathRoutines.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/ButtonMenu.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/WindowSize.h"

#include <QContextMenuEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QScopeGuard>
#include <QSet>

using namespace GeneralModule;

namespace {

constexpr QSize missingPicturesSize(940, 720);
constexpr std::chrono::milliseconds sliceOfSearch(20); // between two looks at the stop button

const QString userSection = QStringLiteral("User");
const QString lastFolderKey = QStringLiteral("LastSearchFolder");

} // namespace

frmMissingPictures::frmMissingPictures(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmMissingPictures>())
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    KeepWindowSize(this, missingPicturesSize);
    found_ = new FoundModel(this);
    ui_->treFound->setModel(found_);
    ui_->treFound->header()->setSectionResizeMode(QHeaderView::Stretch);
    ui_->treFolders->header()->setStretchLastSection(false);
    ui_->treFolders->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->treFolders->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    ConnectControls();
}

frmMissingPictures::~frmMissingPictures() = default;

void frmMissingPictures::ConnectControls()
{
    using Form = frmMissingPictures;
    ConnectButtons<Form>(this, {
                                   {ui_->cmdFolder, "album-open", &Form::cmdFolder_Click},
                                   {ui_->cmdSearch, "refresh", &Form::cmdSearch_Click},
                                   {ui_->cmdTake, "index-pictures", &Form::cmdTake_Click},
                                   {ui_->cmdShow, "", &Form::cmdShow_Click},
                                   {ui_->cmdExit, "exit", &Form::cmdExit_Click},
                               });
    new UndoWindow(this, [this] { Form_Load(); });
    connect(ui_->txtFolder, &QLineEdit::textChanged, this, [this] { RefreshState(); });
    connect(ui_->txtFolder, &QLineEdit::returnPressed, ui_->cmdSearch, &QPushButton::click);
    connect(ui_->treFound->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            Guarded(this, &Form::ShowCandidates));
    connect(ui_->lstCandidates, &CandidateList::Chosen, this,
            [this](int number) { CandidateChosen(number); });
}

void frmMissingPictures::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous() && !missing_)
        RunGuarded([this] { Form_Load(); });
}

void frmMissingPictures::Form_Load()
{
    if (ui_->txtFolder->text().isEmpty()) {
        const QString last = GetUserSetting(userSection, lastFolderKey);
        ui_->txtFolder->setText(QFileInfo(last).isDir() ? last : UsersPictureFolder());
    }
    ui_->cmdShow->setVisible(bool(ShowPictures));
    ui_->treFolders->clear();
    found_->Show({});
    ShowCandidates();
    missing_ = std::make_unique<MissingPictures>();
    isLookedFor_ = false;
    looking_.Begin([this](std::chrono::milliseconds time) { return LookForFiles(time); });
    RefreshState();
}

bool frmMissingPictures::LookForFiles(std::chrono::milliseconds time)
{
    const bool goesOn = missing_->Work(time);
    const int missing = int(missing_->GetMissing().size());
    isLookedFor_ = !goesOn;
    ui_->lblMissing->setText(tr("%1 of %n picture(s) missing", nullptr, missing_->GetRead())
                                 .arg(locale().toString(missing)));
    if (isLookedFor_)
        ShowFolders();
    return goesOn;
}

void frmMissingPictures::ShowFolders()
{
    QList<QTreeWidgetItem*> items;
    for (const MissingFolder& folder : missing_->GetFolders()) {
        auto* item = new QTreeWidgetItem(
            {folder.folder, locale().toString(folder.missing), locale().toString(folder.pictures)});
        item->setToolTip(0, folder.folder);
        for (const int column : {1, 2})
            item->setTextAlignment(column, Qt::AlignRight);
        items += item;
    }
    ui_->treFolders->addTopLevelItems(items);
    RefreshState();
}

void frmMissingPictures::RefreshState()
{
    const bool isAnyMissing = isLookedFor_ && !missing_->GetMissing().empty();
    ui_->cmdSearch->setEnabled(isAnyMissing && !ui_->txtFolder->text().trimmed().isEmpty());
    ui_->cmdShow->setEnabled(isAnyMissing);
    OfferUnless(*ui_->cmdTake, CountFound(found_->GetPictures()).found > 0,
                IsAlbumReadOnly() ? ReadOnlyReason() : QString());
}

void frmMissingPictures::contextMenuEvent(QContextMenuEvent* event)
{
    ButtonMenu menu(this);
    menu.AddButtons({ui_->cmdFolder, ui_->cmdSearch, ui_->cmdTake});
    menu.AddButtons({ui_->cmdShow, ui_->cmdExit});
    menu.exec(event->globalPos());
}

void frmMissingPictures::cmdFolder_Click()
{
    const QString folder = Dialogs::Door().AskFolder(
        {.title = tr("Folder to Look In"), .filter = {}, .folder = ui_->txtFolder->text()});
    if (!folder.isEmpty())
        ui_->txtFolder->setText(folder);
}

std::vector<MissingPicture> frmMissingPictures::Wanted() const
{
    QSet<QString> folders;
    for (const QTreeWidgetItem* item : ui_->treFolders->selectedItems())
        folders.insert(item->text(0));
    std::vector<MissingPicture> wanted;
    for (const MissingPicture& picture : missing_->GetMissing()) {
        if (folders.isEmpty() || folders.contains(FolderOf(picture.file)))
            wanted.push_back(picture);
    }
    return wanted;
}

void frmMissingPictures::cmdSearch_Click()
{
    const QString folder = ui_->txtFolder->text().trimmed();
    if (!QFileInfo(folder).isDir())
        return Tell(tr("There is no folder '%1'.").arg(folder), Dialogs::Icon::Warning);
    SaveUserSetting(userSection, lastFolderKey, folder);
    const BusyPointer busy;
    MissingSearch search(Wanted(), QFileInfo(folder).absoluteFilePath(),
                         [this](const QString& path) { return missing_->IsHeld(path); });
    ui_->progress->Begin(0, true);
    bool isWhole = true;
    {
        const auto end = qScopeGuard([this] { ui_->progress->End(); });
        while (isWhole && search.Work(sliceOfSearch))
            isWhole = ui_->progress->Advance(search.GetFiles());
    }
    QStringList remarks;
    if (!isWhole)
        remarks += tr("you stopped after %n files", nullptr, search.GetFiles());
    if (search.GetUnreadable() > 0)
        remarks += tr("%n folders cannot be read", nullptr, search.GetUnreadable());
    ShowFound(search.Match(), remarks.join(QStringLiteral("; ")));
}

void frmMissingPictures::ShowFound(std::vector<FoundPicture> found, const QString& remark)
{
    found_->Show(std::move(found));
    remark_ = remark;
    ShowCounts();
    if (found_->rowCount() > 0)
        ui_->treFound->setCurrentIndex(found_->index(0, 0));
    ShowCandidates();
}

void frmMissingPictures::ShowCounts()
{
    const FoundCounts counts = CountFound(found_->GetPictures());
    const auto text = [this](int count) { return locale().toString(count); };
    QString line = tr("%1 of %2 found, %3 doubtful, %4 not found")
                       .arg(text(counts.found), text(counts.GetAll()), text(counts.doubtful),
                            text(counts.notFound));
    if (!remark_.isEmpty())
        line += QStringLiteral("; ") + remark_;
    ui_->lblResult->setText(line);
    RefreshState();
}

void frmMissingPictures::ShowCandidates()
{
    const int row = ui_->treFound->currentIndex().row();
    const bool isAny = row >= 0 && !found_->At(row).candidates.isEmpty();
    ui_->lstCandidates->Show(isAny ? found_->At(row).candidates : QStringList(),
                             isAny ? found_->At(row).chosen : -1);
}

void frmMissingPictures::CandidateChosen(int number)
{
    const int row = ui_->treFound->currentIndex().row();
    if (row < 0)
        return;
    found_->Choose(row, number);
    ShowCounts();
}

void frmMissingPictures::cmdTake_Click()
{
    std::optional<FoundTaken> taken;
    {
        const BusyPointer busy;
        ui_->progress->Begin(int(found_->GetPictures().size()), true);
        const auto end = qScopeGuard([this] { ui_->progress->End(); });
        taken = TakeFound(found_->GetPictures(),
                          [this](int done) { return ui_->progress->Advance(done); });
    }
    if (!taken) {
        ui_->lblResult->setText(tr("Stopped: nothing was changed"));
        return;
    }
    QStringList parts{tr("%n picture(s) found again", nullptr, taken->pictures)};
    if (taken->links > 0)
        parts += tr("%n links follow", nullptr, taken->links);
    if (taken->patterns > 0)
        parts += tr("%n file patterns of paragraphs follow", nullptr, taken->patterns);
    if (taken->patternsLeft > 0)
        parts += tr("%n file patterns stay, as not all pictures of their folders are in one place",
                    nullptr, taken->patternsLeft);
    if (taken->alreadyHeld > 0)
        parts += tr("%n already in the album", nullptr, taken->alreadyHeld);
    Form_Load();
    ui_->lblResult->setText(parts.join(QStringLiteral(", ")));
}

void frmMissingPictures::cmdShow_Click()
{
    ShowPictures(this);
    Form_Load();
}

void frmMissingPictures::cmdExit_Click()
{
    close();
}
