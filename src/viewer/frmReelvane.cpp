// SPDX-License-Identifier: MIT
#include "viewer/frmReelvane.h"
#include "ui_frmReelvane.h"

#include "core/Album.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/SettledResize.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"
#include "viewer/StoryEditing.h"
#include "viewer/StoryPage.h"
#include "viewer/frmFullScreen.h"

#include <QScopeGuard>

#include <algorithm>

namespace {

constexpr QSize proposedSize(1280, 860);

} // namespace

frmReelvane::frmReelvane(QWidget* parent)
    : QDialog(parent),
      reader_([this] { return IsInFront(); }, this),
      ui_(std::make_unique<Ui::frmReelvane>())
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    DrawOn(ui_->page);
    KeepWindowSize(this, proposedSize);
    MakeControls();
    ConnectControls();
    ShowAutoviewState(false);
}

frmReelvane::~frmReelvane() = default;

void frmReelvane::MakeControls()
{
    using Command = ViewerCommand;
    using Form = frmReelvane;
    controls_ = {
        {Command::TopOfChapter, ui_->cmdPreviousChapter, "previous-chapter",
         &Form::GoToTopOfChapter},
        {Command::PreviousParagraph, ui_->cmdPreviousParagraph, "previous-paragraph",
         &Form::DisplayPreviousParagraph},
        {Command::NextParagraph, ui_->cmdNextParagraph, "next-paragraph",
         &Form::DisplayNextParagraph},
        {Command::NextChapter, ui_->cmdNextChapter, "next-chapter", &Form::GoToNextChapter},
        {Command::NextPictures, ui_->cmdNextImages, "next-pictures", &Form::cmdNextImages_Click},
        {Command::ZoomIn, ui_->cmdZoomIn, "zoom-in", &Form::cmdZoomIn_Click},
        {Command::ZoomOut, ui_->cmdZoomOut, "zoom-out", &Form::cmdZoomOut_Click},
        {Command::SwitchAutoview, ui_->cmdTimer, "timer-start", &Form::cmdTimer_Click},
        {Command::EditParagraph, ui_->cmdEditParagraph, "edit-paragraph",
         &Form::cmdEditParagraph_Click},
        {Command::None, ui_->cmdRefresh, "refresh", &Form::cmdRefresh_Click},
        {Command::FullScreen, ui_->cmdHideMenu, "full-screen", &Form::cmdHideMenu_Click},
        {Command::Close, ui_->cmdClose, "exit", &Form::CloseViewer},
        {Command::PressButton, nullptr, nullptr, &Form::PressFocusedButton},
    };
}

void frmReelvane::ConnectControls()
{
    for (const Control& control : controls_) {
        if (!control.button)
            continue;
        control.button->setIcon(ThemedIcon(QString::fromLatin1(control.icon)));
        connect(control.button, &QPushButton::clicked, this, Guarded(this, control.handler));
    }
    TakeClicksOf(ui_->page);
    connect(&reader_, &StoryReader::Ended, this, &frmReelvane::CloseViewer);
    connect(&reader_.GetAutoview(), &Autoview::Switched, this, &frmReelvane::ShowAutoviewState);
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
    new SettledResize(this, [this] { Form_Resize(); });
}

void frmReelvane::TakeClicksOf(StoryPage* page)
{
    connect(page, &StoryPage::PicturePressed, this, [this](int index, Qt::MouseButton button) {
        RunGuarded([&] { imgImage_MouseDown(index, button); });
    });
    connect(page, &StoryPage::FullSizePressed, this,
            [this](Qt::MouseButton button) { RunGuarded([&] { imgFullSize_MouseDown(button); }); });
    connect(page, &StoryPage::LegendClicked, this, Guarded(this, &frmReelvane::lblLegend_Click));
}

void frmReelvane::closeEvent(QCloseEvent* event)
{
    reader_.GetAutoview().End();
    QDialog::closeEvent(event);
}

void frmReelvane::CloseViewer()
{
    if (IsFullScreenOpen())
        DisplayForm->window()->close();
    close();
}

void frmReelvane::DrawOn(StoryPage* page)
{
    DisplayForm = page;
    reader_.DrawOn(*page);
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

// The buttons are chosen before the window's minimum size is known, which must not count one that
// is hidden.
void frmReelvane::setVisible(bool visible)
{
    const bool hasStory = reader_.GetMode() != StoryMode::Selection;
    // Only one of the two is useful, and a small screen has no room for both.
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
    // The full-screen page has not changed, and this one is drawn again when it comes back.
    if (!IsFullScreenOpen())
        reader_.DisplayFromBeginning();
}

void frmReelvane::ShowAutoviewState(bool isOn)
{
    const char* icon = isOn ? "timer-stop" : "timer-start";
    ui_->cmdTimer->setIcon(ThemedIcon(QString::fromLatin1(icon)));
    ui_->cmdTimer->setText(isOn ? tr("Stop Autoview") : tr("Start Autoview"));
    ui_->cmdTimer->setToolTip(isOn ? tr("Click to stop autoview") : tr("Click to start autoview"));
}

void frmReelvane::cmdHideMenu_Click()
{
    {
        frmFullScreen fullScreen(*this);
        DrawOn(fullScreen.GetPage());
        const auto giveBack = qScopeGuard([this] { DrawOn(ui_->page); });
        fullScreen.exec();
    }
    if (isVisible()) // it is not when there was nothing left to read
        reader_.GoTo(reader_.Position);
}

void frmReelvane::EditCurrentParagraph()
{
    EditParagraph(reader_, DisplayForm->window());
}

void frmReelvane::imgImage_MouseDown(int index, Qt::MouseButton button)
{
    const std::vector<ShownPicture>& displayed = reader_.GetDisplayed();
    if (std::size_t(index) >= displayed.size())
        return;
    const ShownPicture picture = displayed[std::size_t(index)];
    if (button == Qt::LeftButton)
        reader_.ShowAlone(picture);
    else if (button == Qt::RightButton)
        IndexPicture(reader_, picture.file, DisplayForm->window());
}

void frmReelvane::PressFocusedButton()
{
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button && !IsFullScreenOpen())
        button->click();
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
    const auto pause = reader_.GetAutoview().Pause();
    const auto control =
        std::find_if(controls_.begin(), controls_.end(),
                     [command](const Control& each) { return each.command == command; });
    if (command == ViewerCommand::None || control == controls_.end())
        return false;
    (this->*control->handler)();
    return true;
}
