// SPDX-License-Identifier: MIT
#include "viewer/frmReelvane.h"
#include "ui_frmReelvane.h"

#include "catalogue/frmEditImage.h"
#include "core/Album.h"
#include "core/PictureFile.h"
#include "core/ViewerFlags.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/SettledResize.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"
#include "viewer/StoryPage.h"
#include "viewer/frmFullScreen.h"

#include <QFileInfo>
#include <QScopeGuard>

namespace {

constexpr int mostLines = 4;
constexpr QSize proposedSize(1280, 860);

} // namespace

frmReelvane::frmReelvane(QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmReelvane>()),
      autoview_([this] { timImage_Timer(); }, [this] { return IsInFront(); }, this)
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    DisplayForm = ui_->page;
    KeepWindowSize(this, proposedSize);
    ConnectControls();
    ShowAutoviewState(false);
}

frmReelvane::~frmReelvane() = default;

void frmReelvane::ConnectControls()
{
    struct Button
    {
        QPushButton* button;
        const char* icon;
        void (frmReelvane::*handler)();
    };
    for (const Button& entry : {
             Button{ui_->cmdPreviousChapter, "previous-chapter", &frmReelvane::GoToTopOfChapter},
             Button{ui_->cmdPreviousParagraph, "previous-paragraph",
                    &frmReelvane::DisplayPreviousParagraph},
             Button{ui_->cmdNextParagraph, "next-paragraph", &frmReelvane::DisplayNextParagraph},
             Button{ui_->cmdNextChapter, "next-chapter", &frmReelvane::GoToNextChapter},
             Button{ui_->cmdNextImages, "next-pictures", &frmReelvane::cmdNextImages_Click},
             Button{ui_->cmdZoomIn, "zoom-in", &frmReelvane::cmdZoomIn_Click},
             Button{ui_->cmdZoomOut, "zoom-out", &frmReelvane::cmdZoomOut_Click},
             Button{ui_->cmdTimer, "timer-start", &frmReelvane::cmdTimer_Click},
             Button{ui_->cmdEditParagraph, "edit-paragraph", &frmReelvane::cmdEditParagraph_Click},
             Button{ui_->cmdRefresh, "refresh", &frmReelvane::cmdRefresh_Click},
             Button{ui_->cmdHideMenu, "full-screen", &frmReelvane::cmdHideMenu_Click},
             Button{ui_->cmdClose, "exit", &frmReelvane::CloseViewer},
         }) {
        entry.button->setIcon(ThemedIcon(QString::fromLatin1(entry.icon)));
        connect(entry.button, &QPushButton::clicked, this, Guarded(this, entry.handler));
    }
    TakeClicksOf(ui_->page);
    connect(&autoview_, &Autoview::Switched, this, &frmReelvane::ShowAutoviewState);
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
    new SettledResize(this, [this] { Form_Resize(); });
}

void frmReelvane::TakeClicksOf(StoryPage* page)
{
    connect(page, &StoryPage::PicturePressed, this, [this](int index, Qt::MouseButton button) {
        RunGuarded([&] { imgImage_MouseDown(index, button); });
    });
    connect(page, &StoryPage::LegendClicked, this, Guarded(this, &frmReelvane::lblLegend_Click));
    connect(page, &StoryPage::FullSizePressed, this, &frmReelvane::imgFullSize_MouseDown);
}

void frmReelvane::closeEvent(QCloseEvent* event)
{
    autoview_.End();
    QDialog::closeEvent(event);
}

void frmReelvane::CloseViewer()
{
    if (IsFullScreenOpen())
        DisplayForm->window()->close();
    close();
}

bool frmReelvane::IsFullScreenOpen() const
{
    return DisplayForm != ui_->page;
}

bool frmReelvane::IsInFront() const
{
    const QWidget* modal = QApplication::activeModalWidget();
    return !modal || modal == DisplayForm->window();
}

// Before the window's least size is told, which must not count a button that is hidden.
void frmReelvane::setVisible(bool visible)
{
    const bool hasStory = CurrentChapter != 0;
    // One of the two is of use, and a small screen has room for one.
    ui_->cmdRefresh->setVisible(!hasStory);
    ui_->cmdEditParagraph->setVisible(hasStory);
    OfferUnless(*ui_->cmdEditParagraph, true,
                GeneralModule::IsAlbumReadOnly() ? GeneralModule::ReadOnlyReason() : QString());
    for (QPushButton* button : {ui_->cmdPreviousChapter, ui_->cmdPreviousParagraph,
                                ui_->cmdNextParagraph, ui_->cmdNextChapter})
        button->setEnabled(hasStory);
    if (visible && !isVisible())
        (hasStory ? ui_->cmdNextParagraph : ui_->cmdNextImages)->setFocus();
    QDialog::setVisible(visible);
}

void frmReelvane::Form_Resize()
{
    // The page that is drawn on has not changed, and this one is drawn anew when it comes back.
    if (IsFullScreenOpen())
        return;
    Nblines = 1;
    CurrentParagraph = 0;
    DisplayAgain();
}

void frmReelvane::DisplayImagesFromList(bool isAgain)
{
    display_.ShowScreen(Nblines, isAgain);
    LastImageDisplayed = display_.GetLastDisplayed();
    autoview_.Release(); // a picture that was shown alone is no more
}

void frmReelvane::ShowText(bool isBrowsing)
{
    if (isBrowsing)
        display_.ShowCountLeft();
    else
        display_.ShowText();
}

void frmReelvane::cmdTimer_Click()
{
    if (autoview_.Switch())
        DisplayForm->SetLegend(GeneralModule::AutoviewOn ? tr("Timer On") : tr("Timer Off"));
}

void frmReelvane::ShowAutoviewState(bool isOn)
{
    const char* icon = isOn ? "timer-stop" : "timer-start";
    ui_->cmdTimer->setIcon(ThemedIcon(QString::fromLatin1(icon)));
    ui_->cmdTimer->setText(isOn ? tr("Stop Autoview") : tr("Start Autoview"));
    ui_->cmdTimer->setToolTip(isOn ? tr("Click to stop autoview") : tr("Click to start autoview"));
}

void frmReelvane::timImage_Timer()
{
    if (CurrentChapter != 0) {
        DisplayNextParagraph();
    } else if (display_.GetList().Count() > 0) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        Form_KeyDown(down);
    } else {
        autoview_.End(); // the last page was on show for its time
        DisplayForm->SetLegend(tr("Timer Off"));
    }
}

void frmReelvane::cmdHideMenu_Click()
{
    {
        frmFullScreen fullScreen(*this);
        DisplayForm = fullScreen.GetPage();
        const auto giveBack = qScopeGuard([this] { DisplayForm = ui_->page; });
        fullScreen.exec();
    }
    if (!isVisible())
        return; // there was nothing left to read
    if (CurrentParagraph < 1)
        CloseViewer();
    else
        DisplayParagraph();
}

void frmReelvane::cmdEditParagraph_Click()
{
    EditCurrentParagraph();
}

void frmReelvane::lblLegend_Click()
{
    EditCurrentParagraph();
}

void frmReelvane::cmdNextImages_Click()
{
    if (display_.GetList().Count() == 0)
        return DisplayNextParagraph();
    DisplayImagesFromList(false);
    if (display_.GetDisplayed().empty() && CurrentParagraph > 0)
        return DisplayNextParagraph(); // none of the files left in the list is there any more
    ShowText(CurrentChapter < 1);
}

void frmReelvane::cmdZoomIn_Click()
{
    if (Nblines == 0)
        return;
    --Nblines;
    DisplayImagesFromList(true);
    ShowText(CurrentChapter < 1);
}

// Tells browsing by the paragraph where zooming in tells it by the chapter, on purpose: in an empty
// chapter zooming out shows how many pictures are left.
void frmReelvane::cmdZoomOut_Click()
{
    if (Nblines == mostLines)
        return;
    ++Nblines;
    DisplayImagesFromList(true);
    ShowText(CurrentParagraph < 1);
}

void frmReelvane::PressFocusedButton()
{
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button && !IsFullScreenOpen())
        button->click();
}

void frmReelvane::cmdRefresh_Click()
{
    DisplaySelection();
}

void frmReelvane::imgImage_MouseDown(int index, Qt::MouseButton button)
{
    const std::vector<ShownPicture>& displayed = display_.GetDisplayed();
    if (std::size_t(index) >= displayed.size())
        return;
    const ShownPicture picture = displayed[std::size_t(index)];
    if (button == Qt::LeftButton) {
        autoview_.Hold();
        display_.ShowLarge(picture, CurrentParagraph > 0);
    } else if (button == Qt::RightButton) {
        IndexPicture(picture.file);
    }
}

void frmReelvane::IndexPicture(const QString& file)
{
    const auto pause = autoview_.Pause();
    // A story still shows the pictures that the indexing window went on to; a selection to be
    // indexed does not come back to them.
    PictureList upcoming = display_.GetList();
    const auto isThere = [](const QString& picture) {
        return QFileInfo::exists(GeneralModule::ResolvePictureFile(picture));
    };
    frmEditImage window(DisplayForm->window());
    window.CurrentImage = file;
    window.HasNextPicture = [&] { return upcoming.Count() > 0; };
    window.NextPicture = [&] {
        const QString next = upcoming.PickNext(GeneralModule::PictureAtRandom, isThere);
        upcoming.TakePicked();
        return next;
    };
    window.exec();
    const bool isBrowsing = CurrentChapter < 1;
    if (isBrowsing)
        display_.SetList(upcoming);
    if (!window.TakenOut.isEmpty()) {
        display_.Remove(window.TakenOut);
        DisplayImagesFromList(true);
    }
    ShowText(isBrowsing);
}

void frmReelvane::imgFullSize_MouseDown(Qt::MouseButton)
{
    const auto pause = autoview_.Pause();
    DisplayForm->LeaveFullSize();
    RunGuarded([this] { ShowText(CurrentChapter < 1); });
}

bool frmReelvane::Form_KeyDown(const QKeyEvent& key)
{
    const ViewerCommand command = CommandOf(key);
    if (command == ViewerCommand::Leave)
        return false;
    // Autoview goes on there, as it does after a click on the button.
    if (command == ViewerCommand::FullScreen) {
        cmdHideMenu_Click();
        return true;
    }
    const auto pause = autoview_.Pause();
    return Run(command);
}

bool frmReelvane::Run(ViewerCommand command)
{
    static const QHash<ViewerCommand, void (frmReelvane::*)()> handlers{
        {ViewerCommand::EditParagraph, &frmReelvane::cmdEditParagraph_Click},
        {ViewerCommand::NextPictures, &frmReelvane::cmdNextImages_Click},
        {ViewerCommand::NextParagraph, &frmReelvane::DisplayNextParagraph},
        {ViewerCommand::PreviousParagraph, &frmReelvane::DisplayPreviousParagraph},
        {ViewerCommand::NextChapter, &frmReelvane::GoToNextChapter},
        {ViewerCommand::TopOfChapter, &frmReelvane::GoToTopOfChapter},
        {ViewerCommand::ZoomOut, &frmReelvane::cmdZoomOut_Click},
        {ViewerCommand::ZoomIn, &frmReelvane::cmdZoomIn_Click},
        {ViewerCommand::SwitchAutoview, &frmReelvane::cmdTimer_Click},
        {ViewerCommand::PressButton, &frmReelvane::PressFocusedButton},
        {ViewerCommand::Close, &frmReelvane::CloseViewer},
    };
    const auto handler = handlers.value(command, nullptr);
    if (!handler)
        return false;
    (this->*handler)();
    return true;
}
