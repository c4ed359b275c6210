// SPDX-License-Identifier: MIT
#include "ui/main/frmEarlierStates.h"
#include "ui_frmEarlierStates.h"

#include "catalogue/UndoWindow.h"
#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "core/StateKeeping.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/files/PathRoutines.h"
#include "platform/shell/ProgramFolder.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/WindowSize.h"
#include "ui/main/frmTakeChapters.h"

#include <QDir>
#include <QHeaderView>
#include <QProcess>
#include <QScopeGuard>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(820, 500);

enum Column { KeptColumn, SizeColumn, ChaptersColumn, PicturesColumn, NoteColumn };

bool StartProgramOn(const QString& state)
{
    return QProcess::startDetached(ProgramFile(QStringLiteral("lumenark")), {state});
}

} // namespace

std::function<bool(const QString& state)> frmEarlierStates::LookInto = StartProgramOn;

frmEarlierStates::frmEarlierStates(QWidget* parent)
    : QDialog(parent), AlbumPath(OpenAlbumPath()), ui_(std::make_unique<Ui::frmEarlierStates>())
{
    using Form = frmEarlierStates;
    ui_->setupUi(this);
    KeepWindowSize(this, proposedSize);
    ui_->treStates->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->treStates->header()->setStretchLastSection(true);
    for (const int column : {SizeColumn, ChaptersColumn, PicturesColumn})
        ui_->treStates->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    ConnectButtons<Form>(this,
                         {
                             {ui_->cmdLookInto, "preview", &Form::cmdLookInto_Click},
                             {ui_->cmdTakeBack, "as-before", &Form::cmdTakeBack_Click},
                             {ui_->cmdTakeChapters, "chapter-create", &Form::cmdTakeChapters_Click},
                             {ui_->cmdDelete, "delete", &Form::cmdDelete_Click},
                             {ui_->cmdKeepNow, "album-create", &Form::cmdKeepNow_Click},
                             {ui_->cmdFolder, "album-open", &Form::cmdFolder_Click},
                             {ui_->cmdExit, "exit", &Form::cmdExit_Click},
                         });
    new UndoWindow(this);
    connect(ui_->treStates, &QTreeWidget::currentItemChanged, this,
            Guarded(this, &Form::OfferActions));
    connect(ui_->treStates, &QTreeWidget::itemDoubleClicked, this,
            Guarded(this, &Form::cmdLookInto_Click));
    connect(ui_->chkKeep, &QCheckBox::clicked, this, Guarded(this, &Form::chkKeep_Click));
    ui_->spnLimit->setValue(StatesLimit());
    connect(ui_->spnLimit, &QSpinBox::valueChanged, this, Guarded(this, &Form::spnLimit_Change));
}

// A number still being typed is taken when the window hides, which needs its controls.
frmEarlierStates::~frmEarlierStates()
{
    hide();
}

void frmEarlierStates::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        RunGuarded([this] { Form_Load(); });
}

void frmEarlierStates::Form_Load()
{
    const bool isLarge = TimeToKeep(QFileInfo(AlbumPath).size(), false) > longestUnasked;
    const StateWish wish = StateWishFor(AlbumPath);
    ui_->chkKeep->setChecked(wish == StateWish::Keep || (wish == StateWish::NotAsked && !isLarge));
    ui_->chkKeep->setEnabled(!AlbumPath.isEmpty());
    ShowFolder();
    ShowStates();
}

void frmEarlierStates::ShowFolder()
{
    ui_->lblFolder->setText(tr("Kept in %1").arg(QDir::toNativeSeparators(StatesFolder())));
}

void frmEarlierStates::ShowStates()
{
    counting_.Stop();
    states_ = AlbumPath.isEmpty() ? std::vector<EarlierState>() : EarlierStatesOf(AlbumPath);
    qint64 bytes = 0;
    ui_->treStates->clear();
    for (const EarlierState& state : states_) {
        auto* item = new QTreeWidgetItem(ui_->treStates);
        item->setText(KeptColumn, TimeText(state.kept));
        item->setText(SizeColumn,
                      locale().formattedDataSize(state.size, 1, QLocale::DataSizeSIFormat));
        if (state.isReplaced)
            item->setText(NoteColumn, tr("replaced by an earlier state"));
        for (const int column : {SizeColumn, ChaptersColumn, PicturesColumn})
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        bytes += state.size;
    }
    ui_->lblStates->setText(
        states_.empty()
            ? tr("No earlier state of %1 is kept so far.").arg(FileNameOf(AlbumPath))
            : tr("%1 as it was, %n time(s), in %2 :", nullptr, int(states_.size()))
                  .arg(FileNameOf(AlbumPath),
                       locale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat)));
    ui_->treStates->setCurrentItem(ui_->treStates->topLevelItem(0));
    counted_ = 0;
    counting_.Begin([this](std::chrono::milliseconds) { return CountNext(); });
    OfferActions();
}

// One state each time: a large one takes a while.
bool frmEarlierStates::CountNext()
{
    if (counted_ >= int(states_.size()))
        return false;
    const int row = counted_++;
    QTreeWidgetItem* item = ui_->treStates->topLevelItem(row);
    try {
        if (const auto state = passwords_.TryOpen(states_[std::size_t(row)].path))
            ShowCounts(*item, *state);
        else
            item->setText(ChaptersColumn, tr("locked"));
    } catch (const std::exception&) {
        item->setText(ChaptersColumn, tr("damaged"));
    }
    return true;
}

void frmEarlierStates::ShowCounts(QTreeWidgetItem& item, const OpenState& state) const
{
    item.setText(ChaptersColumn, locale().toString(state.CountChapters()));
    item.setText(PicturesColumn, locale().toString(state.CountPictures()));
}

const EarlierState* frmEarlierStates::Selected() const
{
    const int row = ui_->treStates->indexOfTopLevelItem(ui_->treStates->currentItem());
    return row >= 0 && row < int(states_.size()) ? &states_[std::size_t(row)] : nullptr;
}

bool frmEarlierStates::IsOpenHere() const
{
    return IsAlbumOpen() && OpenAlbumPath() == AlbumPath;
}

void frmEarlierStates::OfferActions()
{
    const bool isReadOnly = IsOpenHere() && IsAlbumReadOnly();
    const QString reason = isReadOnly ? ReadOnlyReason() : QString();
    const bool isAny = Selected() != nullptr;
    ui_->cmdLookInto->setEnabled(isAny);
    ui_->cmdDelete->setEnabled(isAny);
    OfferUnless(*ui_->cmdTakeBack, isAny, reason);
    OfferUnless(*ui_->cmdTakeChapters, isAny && IsOpenHere(), reason);
    ui_->cmdKeepNow->setEnabled(IsOpenHere() && !IsEarlierState(AlbumPath));
}

void frmEarlierStates::cmdLookInto_Click()
{
    const EarlierState* state = Selected();
    if (state && !LookInto(state->path))
        Tell(tr("No other window of the program could be opened."), Dialogs::Icon::Warning);
}

void frmEarlierStates::cmdTakeBack_Click()
{
    if (!Selected())
        return;
    const EarlierState state = *Selected();
    const auto opened = passwords_.Open(state.path);
    if (!opened)
        return;
    QString question =
        tr("Make the album as it was on %1? What it is now is kept among its earlier "
           "states first, so that it can be taken back too.")
            .arg(TimeText(state.kept));
    if (opened->GetPassword().isEmpty() && IsOpenHere() && AlbumHasPassword())
        question += u'\n' + tr("The album had no password then, and will have none.");
    if (!AgreesTo(question))
        return;
    const auto showAll = qScopeGuard([this] { ShowStates(); });
    bool isOpen = false;
    {
        const BusyPointer busy;
        isOpen = TakeBackState(state.path, opened->GetPassword(), AlbumPath);
    }
    if (isOpen)
        Tell(tr("The album is as it was on %1.").arg(TimeText(state.kept)));
}

void frmEarlierStates::cmdTakeChapters_Click()
{
    if (!Selected())
        return;
    frmTakeChapters taking(this);
    taking.State = passwords_.Open(Selected()->path);
    if (taking.State && taking.exec() == QDialog::Accepted)
        ShowStates();
}

void frmEarlierStates::cmdDelete_Click()
{
    if (!Selected())
        return;
    const EarlierState state = *Selected();
    if (!AgreesTo(tr("Delete the state of %1 for ever? The album stays as it is.")
                      .arg(TimeText(state.kept))))
        return;
    if (!RemoveState(state))
        Tell(tr("The file '%1' cannot be deleted.").arg(QDir::toNativeSeparators(state.path)),
             Dialogs::Icon::Warning);
    ShowStates();
}

void frmEarlierStates::cmdKeepNow_Click()
{
    {
        const BusyPointer busy;
        const auto end = qScopeGuard([this] { ui_->progress->End(); });
        ui_->progress->Begin(100, true);
        KeepState(false, [this](int percent) { return ui_->progress->Advance(percent); });
    }
    ShowStates();
}

void frmEarlierStates::cmdFolder_Click()
{
    const QString folder =
        Dialogs::Door().AskFolder({.title = tr("Folder for Earlier States"),
                                   .filter = {},
                                   .folder = QDir::toNativeSeparators(StatesFolder())});
    if (folder.isEmpty())
        return;
    SetStatesFolder(folder);
    ShowFolder();
    ShowStates();
    Tell(tr("States are kept in the new folder from now on. Those in the former folder stay there; "
            "move them to the new one if you want to see them here."));
}

void frmEarlierStates::cmdExit_Click()
{
    reject();
}

void frmEarlierStates::chkKeep_Click()
{
    SetStateWish(AlbumPath, ui_->chkKeep->isChecked() ? StateWish::Keep : StateWish::DoNotKeep);
}

void frmEarlierStates::spnLimit_Change()
{
    SetStatesLimit(ui_->spnLimit->value());
}
