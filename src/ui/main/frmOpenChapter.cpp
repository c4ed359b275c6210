// SPDX-License-Identifier: MIT
#include "ui/main/frmOpenChapter.h"
#include "ui_frmOpenChapter.h"

#include "catalogue/Picture.h"
#include "catalogue/UndoWindow.h"
#include "catalogue/frmEditLabels.h"
#include "catalogue/frmEditTables.h"
#include "catalogue/frmLoadFiles.h"
#include "catalogue/frmMissingPictures.h"
#include "catalogue/frmReloadPictures.h"
#include "core/Album.h"
#include "core/ChapterChain.h"
#include "core/StartUp.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/DropTarget.h"
#include "platform/widgets/FrontWindow.h"
#include "platform/widgets/HelpWindow.h"
#include "platform/widgets/LiteralText.h"
#include "platform/widgets/RowDrag.h"
#include "platform/widgets/WindowSize.h"
#include "publish/frmPublish.h"
#include "ui/main/AlbumOpener.h"
#include "ui/main/AlbumStatus.h"
#include "ui/main/ChapterList.h"
#include "ui/main/FileDrop.h"
#include "ui/main/GuidanceLook.h"
#include "ui/main/LookOptions.h"
#include "ui/main/MainWindowKeys.h"
#include "ui/main/PasswordQuestions.h"
#include "ui/main/TransitionOption.h"
#include "ui/main/UndoMenu.h"
#include "ui/main/ViewerWindows.h"
#include "ui/main/frmAbout.h"
#include "ui/main/frmCheckAlbum.h"
#include "ui/main/frmRepairAlbum.h"
#include "viewer/ViewerFlags.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(860, 600);

void ShowMissing(QWidget* window)
{
    OpenPictureFinder({.parent = window}, true);
}

} // namespace

frmOpenChapter::frmOpenChapter(const QString& album, const QString& sample)
    : sample_(sample), ui_(std::make_unique<Ui::frmOpenChapter>())
{
    ui_->setupUi(this);
    const auto refresh = [this] { RefreshState(); };
    chapters_ = std::make_unique<ChapterList>(ui_->lstChapter);
    albums_ = std::make_unique<AlbumOpener>(ui_->mnuRecent, chapters_.get(), refresh);
    drop_ = std::make_unique<FileDrop>(
        ui_->progress, [this](const QString& path) { albums_->Open(path); }, refresh);
    connect(new DropTarget(this), &DropTarget::Dropped, this,
            [this](const QList<QUrl>& urls) { RunGuarded([&] { drop_->Take(urls); }); });
    guidance_ = std::make_unique<GuidanceLook>(ui_->lblWarning, this);
    status_ = std::make_unique<AlbumStatus>(AlbumStatus::Controls{
        ui_->albumStatus, ui_->lblAlbum, ui_->lblPictures, ui_->cmdNotIndexed, ui_->cmdMissing});
    KeepWindowSize(this, proposedSize);
    ConnectCommands();
    ConnectControls();
    SetCallHandler([this] { BringToFront(this); });
    SetPictureWindows({.find = [](const FindRequest& request) { OpenPictureFinder(request); },
                       .showLinked = OpenLinkedPictures});
    Form_Load(album);
}

frmOpenChapter::~frmOpenChapter()
{
    SetCallHandler({});
}

void frmOpenChapter::ConnectControls()
{
    for (QAction* separator :
         {ui_->mnuSep1, ui_->mnuSep2, ui_->mnuSep3, ui_->mnuSep4, ui_->mnuSep5, ui_->mnuSep6})
        separator->setSeparator(true);
    OfferSoftTransitions(*ui_->mnuSoftTransitions);
    OfferTextSizes(*ui_->mnuTextSize);
    OfferColors(*ui_->mnuColors);
    OfferLanguages(*ui_->mnuLanguage);
    ui_->sampleOffer->setVisible(!sample_.isEmpty());
    ui_->mnuOpenSample->setVisible(!sample_.isEmpty());
    connect(ui_->lstChapter, &QListWidget::currentRowChanged, this,
            Guarded(this, &frmOpenChapter::RefreshState));
    connect(ui_->lstChapter, &QListWidget::itemDoubleClicked, this,
            Guarded(this, &frmOpenChapter::cmdReadChapter_Click));
    connect(ui_->lstChapter, &QListWidget::customContextMenuRequested, this, [this](QPoint place) {
        ui_->mnuChapter->popup(ui_->lstChapter->viewport()->mapToGlobal(place));
    });
    drag_ = new RowDrag(ui_->lstChapter);
    connect(drag_, &RowDrag::Dropped, this,
            [this](int from, int to) { RunGuarded([&] { MoveRow(from, to); }); });
    new WindowKeys(this, MainWindowKeys());
    new UndoWindow(this, [this] { ShowAlbumAgain(); });
    new UndoMenu({ui_->mnuTools, ui_->mnuUndo, ui_->mnuRedo, ui_->mnuUndoSeveral}, this);
    connect(ui_->cmdNotIndexed, &QPushButton::clicked, ui_->mnuUndefined, &QAction::trigger);
    connect(ui_->cmdMissing, &QPushButton::clicked, this,
            Guarded(this, &frmOpenChapter::mnuMissingPictures_Click));
}

bool frmOpenChapter::AlbumOpen() const
{
    return IsAlbumOpen();
}

void frmOpenChapter::Form_Load(const QString& album)
{
    InitModule();
    albums_->OpenFirst(album);
}

void frmOpenChapter::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    // While a message tells that the list cannot be read, no further one shall come up over it.
    if (isRefilling_)
        return;
    const QScopedValueRollback<bool> refilling(isRefilling_, true);
    RunGuarded([this] {
        if (AlbumOpen())
            chapters_->Fill();
        RefreshState();
    });
}

void frmOpenChapter::ShowAlbumAgain()
{
    if (AlbumOpen())
        chapters_->Fill();
    RefreshState();
}

void frmOpenChapter::RefreshState()
{
    const MainWindowState state = DescribeMainWindow(
        {AlbumOpen(), IsAlbumReadOnly(), AlbumOpen() && HasPictures(), ui_->lstChapter->count(),
         ui_->lstChapter->currentRow(), OpenAlbumTitle()});
    setWindowTitle(AsWindowTitle(state.caption));
    ui_->lblWarning->setText(state.warning);
    ui_->lblWarning->setVisible(!state.warning.isEmpty());

    for (QPushButton* button : {ui_->cmdLoadPictures, ui_->cmdDisplayUndefined,
                                ui_->cmdCreateChapter, ui_->cmdReadChapter})
        button->setVisible(state.offersAlbumCommands);
    ui_->lstChapter->setVisible(state.offersAlbumCommands);
    ui_->firstSteps->setVisible(!state.offersAlbumCommands);
    setProperty(helpChapterProperty, state.offersAlbumCommands ? "frmOpenChapter" : "start");
    for (const MainWindowCommand& command : commands_)
        OfferCommand(command, state);
    if (AlbumOpen())
        chapters_->ShowParagraphCounts();
    status_->Refresh();
    drag_->Allow(state.offersChapterCommands && !state.isReadOnly);
    for (QMenu* menu : menuBar()->findChildren<QMenu*>())
        menu->setToolTipsVisible(state.isReadOnly);
    if (ui_->lstChapter->isVisible())
        ui_->lstChapter->setFocus();
    albums_->TellStateTrouble();
}

void frmOpenChapter::mnuOpenScript_Click()
{
    albums_->AskAndOpen();
}

void frmOpenChapter::mnuCreateScript_Click()
{
    albums_->AskAndCreate();
}

void frmOpenChapter::mnuOpenSample_Click()
{
    albums_->OpenSample(sample_);
}

void frmOpenChapter::mnuExit_Click()
{
    close();
}

void frmOpenChapter::Read(void (*showChapter)(QWidget* parent, qint32 chapter))
{
    if (!AlbumOpen())
        return;
    const std::optional<qint32> chapter = FindChapter(chapters_->Selected());
    if (!chapter)
        return;
    showChapter(this, *chapter);
    RefreshState();
}

void frmOpenChapter::cmdReadChapter_Click()
{
    Read(ReadChapter);
}

void frmOpenChapter::mnuReadFullScreen_Click()
{
    Read(ReadFullScreen);
}

void frmOpenChapter::cmdCreateChapter_Click()
{
    if (!AlbumOpen() || !chapters_->Create())
        return;
    RefreshState();
    cmdReadChapter_Click();
}

void frmOpenChapter::mnuRename_Click()
{
    if (chapters_->Rename())
        RefreshState();
}

void frmOpenChapter::mnuDeleteChapter_Click()
{
    if (chapters_->Delete())
        RefreshState();
}

void frmOpenChapter::cmdMoveUp_Click()
{
    if (chapters_->MoveUp())
        RefreshState();
}

void frmOpenChapter::cmdMoveDown_Click()
{
    if (chapters_->MoveDown())
        RefreshState();
}

void frmOpenChapter::MoveRow(int from, int to)
{
    if (chapters_->MoveRow(from, to))
        RefreshState();
}

void frmOpenChapter::mnuMissingPictures_Click()
{
    frmMissingPictures window(this);
    window.ShowPictures = ShowMissing;
    window.exec();
    RefreshState();
}

void frmOpenChapter::mnuFindPictures_Click()
{
    OpenPictureFinder({.parent = this});
    RefreshState();
}

void frmOpenChapter::mnuLoadPictures_Click()
{
    frmLoadFiles loading(this);
    loading.DescribePictures = DescribeTogether;
    loading.exec();
    RefreshState();
}

void frmOpenChapter::mnuReloadPictures_Click()
{
    frmReloadPictures window(this);
    window.ShowPictures = ShowMissing;
    window.exec();
    RefreshState();
}

void frmOpenChapter::mnuUndefined_Click()
{
    PictureAtRandom = true;
    BrowsePictures(this, QStringLiteral("-"));
    RefreshState();
}

void frmOpenChapter::mnuSelectedUndefined_Click()
{
    if (BrowseChosenFolder(this, QStringLiteral("-")))
        RefreshState();
}

void frmOpenChapter::mnuAllPictures_Click()
{
    PictureAtRandom = true;
    BrowsePictures(this, QStringLiteral("*"));
    RefreshState();
}

void frmOpenChapter::mnuSelectedPictures_Click()
{
    if (BrowseChosenFolder(this, QStringLiteral("*")))
        RefreshState();
}

void frmOpenChapter::mnuPublish_Click()
{
    frmPublish(this).exec();
    RefreshState();
}

void frmOpenChapter::mnuRepair_Click()
{
    frmRepairAlbum(this).exec();
    ShowAlbumAgain();
}

void frmOpenChapter::mnuCheck_Click()
{
    frmCheckAlbum checking(this);
    checking.exec();
    if (checking.WantsEarlierStates)
        return albums_->ShowEarlierStates(OpenAlbumPath());
    if (AlbumOpen())
        chapters_->Fill();
    RefreshState();
}

void frmOpenChapter::mnuEarlierStates_Click()
{
    albums_->ShowEarlierStates(OpenAlbumPath());
}

void frmOpenChapter::mnuPassword_Click()
{
    AskForNewPassword();
    RefreshState();
}

void frmOpenChapter::mnuEditTables_Click()
{
    frmEditTables({}, this).exec();
    RefreshState();
}

void frmOpenChapter::mnuEditLabels_Click()
{
    frmEditLabels(this).exec();
    RefreshState();
}

void frmOpenChapter::mnuAbout_Click()
{
    frmAbout(this).exec();
}

void frmOpenChapter::mnuPhotoAlbumHelp_Click()
{
    QApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier));
}

void frmOpenChapter::mnuKeys_Click()
{
    KeySheet(AllKeys(), this).exec();
}
