// SPDX-License-Identifier: MIT
#include "ui/main/frmOpenChapter.h"
#include "ui_frmOpenChapter.h"

#include "core/Album.h"
#include "core/ChapterChain.h"
#include "core/PathRoutines.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/files/FolderListing.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"
#include "ui/main/MainWindowState.h"
#include "ui/main/PasswordQuestions.h"
#include "ui/main/RecentMenu.h"
#include "ui/main/frmAbout.h"
#include "ui/main/frmRepairAlbum.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(860, 600);

// Of the last album, or on a first start the user's documents.
QString FolderToBeginWith()
{
    const QString folder = FolderOf(GetLastAlbum());
    return folder.isEmpty() ? UsersDocumentFolder() : folder;
}

// "My Album.alb", or the first "My Album 2.alb" that is free.
QString FreeAlbumName(const QString& folder)
{
    QString name = frmOpenChapter::tr("My Album.alb");
    for (int number = 2; QFileInfo::exists(QDir(folder).filePath(name)); ++number)
        name = frmOpenChapter::tr("My Album %1.alb").arg(number);
    return name;
}

} // namespace

frmOpenChapter::frmOpenChapter(const QString& album) : ui_(std::make_unique<Ui::frmOpenChapter>())
{
    ui_->setupUi(this);
    KeepWindowSize(this, proposedSize);
    ConnectControls();
    DecorateWarning();
    SetCallHandler([this] { ComeToFront(); });
    Form_Load(album);
}

frmOpenChapter::~frmOpenChapter()
{
    SetCallHandler({});
}

// Where the desktop lets no window come forward by itself, it marks the window in its task bar.
void frmOpenChapter::ComeToFront()
{
    if (isMinimized())
        showNormal();
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* front = modal ? modal : this;
    front->raise();
    front->activateWindow();
    QApplication::alert(front);
}

void frmOpenChapter::ConnectControls()
{
    Connect(ui_->cmdOpenAlbum, ui_->mnuOpenScript, &frmOpenChapter::mnuOpenScript_Click,
            "album-open");
    Connect(ui_->cmdCreateAlbum, ui_->mnuCreateScript, &frmOpenChapter::mnuCreateScript_Click,
            "album-create");
    Connect(ui_->cmdExit, ui_->mnuExit, &frmOpenChapter::mnuExit_Click, "exit");
    Connect(ui_->cmdReadChapter, ui_->mnuReadChapter, &frmOpenChapter::cmdReadChapter_Click,
            "read-chapter");
    Connect(ui_->cmdCreateChapter, ui_->mnuCreateChapter, &frmOpenChapter::cmdCreateChapter_Click,
            "chapter-create");
    Connect(nullptr, ui_->mnuRename, &frmOpenChapter::mnuRename_Click, "rename");
    Connect(nullptr, ui_->mnuDeleteChapter, &frmOpenChapter::mnuDeleteChapter_Click, "delete");
    Connect(ui_->cmdMoveUp, nullptr, &frmOpenChapter::cmdMoveUp_Click, "move-up");
    Connect(ui_->cmdMoveDown, nullptr, &frmOpenChapter::cmdMoveDown_Click, "move-down");
    Connect(ui_->cmdLoadPictures, ui_->mnuLoadPictures, &frmOpenChapter::mnuLoadPictures_Click,
            "load-pictures");
    Connect(nullptr, ui_->mnuReloadPictures, &frmOpenChapter::mnuReloadPictures_Click, "refresh");
    Connect(ui_->cmdDisplayUndefined, ui_->mnuUndefined, &frmOpenChapter::mnuUndefined_Click,
            "index-pictures");
    Connect(nullptr, ui_->mnuSelectedUndefined, &frmOpenChapter::mnuSelectedUndefined_Click, "");
    Connect(nullptr, ui_->mnuAllPictures, &frmOpenChapter::mnuAllPictures_Click, "");
    Connect(nullptr, ui_->mnuSelectedPictures, &frmOpenChapter::mnuSelectedPictures_Click, "");
    Connect(nullptr, ui_->mnuRepair, &frmOpenChapter::mnuRepair_Click, "repair");
    Connect(nullptr, ui_->mnuPassword, &frmOpenChapter::mnuPassword_Click, "");
    Connect(nullptr, ui_->mnuPhotoAlbumHelp, &frmOpenChapter::mnuPhotoAlbumHelp_Click, "help");
    Connect(nullptr, ui_->mnuAbout, &frmOpenChapter::mnuAbout_Click, "about");
    for (QAction* separator :
         {ui_->mnuSep1, ui_->mnuSep2, ui_->mnuSep3, ui_->mnuSep4, ui_->mnuSep5})
        separator->setSeparator(true);
    // Nothing stands behind this menu yet.
    ui_->mnuOptions->setEnabled(false);

    connect(ui_->lstChapter, &QListWidget::currentRowChanged, this,
            Guarded(this, &frmOpenChapter::RefreshState));
    connect(ui_->lstChapter, &QListWidget::itemDoubleClicked, this,
            Guarded(this, &frmOpenChapter::cmdReadChapter_Click));
    ui_->lstChapter->installEventFilter(this);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this,
            &frmOpenChapter::mnuExit_Click);
}

// Each button does what its menu entry does.
void frmOpenChapter::Connect(QPushButton* button, QAction* entry, void (frmOpenChapter::*handler)(),
                             const char* icon)
{
    const QIcon drawing = ThemedIcon(QString::fromLatin1(icon));
    if (entry) {
        entry->setIcon(drawing);
        if (handler)
            connect(entry, &QAction::triggered, this, Guarded(this, handler));
    }
    if (button) {
        button->setIcon(drawing);
        if (handler)
            connect(button, &QPushButton::clicked, this, Guarded(this, handler));
    }
}

void frmOpenChapter::DecorateWarning()
{
    QFont font = ui_->lblWarning->font();
    font.setPointSizeF(font.pointSizeF() * 1.35);
    ui_->lblWarning->setFont(font);
    ui_->lblWarning->setAutoFillBackground(true);
    TintWarning();
    QFont listFont = ui_->lstChapter->font();
    listFont.setPointSizeF(listFont.pointSizeF() * 1.2);
    ui_->lstChapter->setFont(listFont);
}

// Between the window's own colour and that of selections, so that it stands out in any theme and
// glares in none.
void frmOpenChapter::TintWarning()
{
    constexpr double share = 0.22; // of the selections' colour
    const QColor ground = palette().color(QPalette::Window);
    const QColor accent = palette().color(QPalette::Highlight);
    const auto mix = [](int first, int second) {
        return int(first * (1 - share) + second * share);
    };
    QPalette tinted = palette();
    tinted.setColor(QPalette::Window,
                    QColor(mix(ground.red(), accent.red()), mix(ground.green(), accent.green()),
                           mix(ground.blue(), accent.blue())));
    ui_->lblWarning->setPalette(tinted);
}

void frmOpenChapter::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        TintWarning();
}

bool frmOpenChapter::AlbumOpen() const
{
    return IsAlbumOpen();
}

void frmOpenChapter::Form_Load(const QString& album)
{
    InitModule();
    const QString path = album.isEmpty() ? GetLastAlbum() : album;
    if (!path.isEmpty())
        OpenAlbum(path);
    FillRecentAlbums();
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
            FillChapterList();
        RefreshState();
    });
}

// Read first: when that fails the list stays as it was.
void frmOpenChapter::FillChapterList(const QString& selected)
{
    const QStringList names = ChapterNames();
    const QString kept = selected.isEmpty() ? SelectedChapter() : selected;
    const QSignalBlocker quiet(ui_->lstChapter);
    ui_->lstChapter->clear();
    ui_->lstChapter->addItems(names);
    SelectRow(qMax(0, int(names.indexOf(kept))));
}

void frmOpenChapter::RefreshState()
{
    const MainWindowState state =
        DescribeMainWindow({AlbumOpen(), IsAlbumReadOnly(), AlbumOpen() && !ImageSet->IsEmpty(),
                            ui_->lstChapter->count(), ui_->lstChapter->currentRow()});
    setWindowTitle(state.caption);
    ui_->lblWarning->setText(state.warning);
    ui_->lblWarning->setVisible(!state.warning.isEmpty());

    for (QPushButton* button : {ui_->cmdLoadPictures, ui_->cmdDisplayUndefined,
                                ui_->cmdCreateChapter, ui_->cmdReadChapter})
        button->setVisible(state.offersAlbumCommands);
    for (QAction* entry : {ui_->mnuAllPictures, ui_->mnuSelectedPictures})
        entry->setEnabled(state.offersPictureCommands);
    ui_->cmdReadChapter->setEnabled(state.offersChapterCommands);
    ui_->mnuReadChapter->setEnabled(state.offersChapterCommands);
    OfferChanges(state);
    if (ui_->lstChapter->isVisible())
        ui_->lstChapter->setFocus();
}

// In an album that can only be read, whatever would change it says why it does not.
void frmOpenChapter::OfferChanges(const MainWindowState& state)
{
    const auto offer = [&state](auto* control, bool isOffered) {
        OfferUnless(*control, isOffered, state.isReadOnly ? ReadOnlyReason() : QString());
    };
    offer(ui_->cmdCreateChapter, state.offersAlbumCommands);
    offer(ui_->mnuCreateChapter, state.offersAlbumCommands);
    offer(ui_->cmdLoadPictures, state.offersAlbumCommands);
    offer(ui_->mnuLoadPictures, state.offersAlbumCommands);
    offer(ui_->mnuReloadPictures, state.offersPictureCommands);
    offer(ui_->cmdDisplayUndefined, state.offersPictureCommands);
    offer(ui_->mnuUndefined, state.offersPictureCommands);
    offer(ui_->mnuSelectedUndefined, state.offersPictureCommands);
    offer(ui_->mnuRename, state.offersChapterCommands);
    offer(ui_->mnuDeleteChapter, state.offersChapterCommands);
    offer(ui_->cmdMoveUp, state.canMoveUp);
    offer(ui_->cmdMoveDown, state.canMoveDown);
    offer(ui_->mnuRepair, state.offersAlbumCommands);
    offer(ui_->mnuPassword, state.offersAlbumCommands);
    for (QMenu* menu : menuBar()->findChildren<QMenu*>())
        menu->setToolTipsVisible(state.isReadOnly);
}

bool frmOpenChapter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            RunGuarded([this] { cmdReadChapter_Click(); });
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void frmOpenChapter::OpenChosen(const QString& path)
{
    ui_->lstChapter->clear();
    const bool isOpen = OpenAlbum(path);
    FillRecentAlbums();
    if (isOpen)
        FillChapterList();
    RefreshState();
}

void frmOpenChapter::FillRecentAlbums()
{
    // Chosen a moment ago: a window that has come up since goes on in the album that it was opened
    // on.
    FillRecentMenu(*ui_->mnuRecent, [this](const QString& path) {
        if (!QApplication::activeModalWidget())
            RunGuarded([this, &path] { OpenChosen(path); });
    });
}

void frmOpenChapter::mnuOpenScript_Click()
{
    const QString path =
        Dialogs::Door().AskOpenFile({tr("Open Album"), tr("Album|*.alb"), FolderToBeginWith()});
    if (path.isEmpty())
        return RefreshState();
    OpenChosen(path);
}

void frmOpenChapter::mnuCreateScript_Click()
{
    const QString folder = FolderToBeginWith();
    const QString path = Dialogs::Door().AskSaveFile(
        {tr("Create a new Album"), tr("Album|*.alb"), folder, FreeAlbumName(folder)});
    if (path.isEmpty())
        return RefreshState();
    if (CreateAlbumFile(path))
        return OpenChosen(path);
    // As after opening in vain, so that nobody goes on in the former album by mistake.
    ui_->lstChapter->clear();
    ReleaseAlbum();
    RefreshState();
}

void frmOpenChapter::mnuExit_Click()
{
    close();
}

void frmOpenChapter::mnuRepair_Click()
{
    frmRepairAlbum(this).exec();
    if (AlbumOpen())
        FillChapterList();
    RefreshState();
}

void frmOpenChapter::mnuPassword_Click()
{
    AskForNewPassword();
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
