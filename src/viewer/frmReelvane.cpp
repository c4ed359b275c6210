// SPDX-License-Identifier: MIT
#include "viewer/frmReelvane.h"
#include "ui_frmReelvane.h"

#include "catalogue/UndoWindow.h"
#include "core/Album.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/SettledResize.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"
#include "viewer/StoryEditing.h"
#include "viewer/frmFullScreen.h"

#include <QContextMenuEvent>
#include <QMenu>
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
        {Command::FindPictures, nullptr, nullptr, &Form::FindPictures},
        {Command::LinkPicture, nullptr, nullptr, &Form::LinkPicture},
        {Command::ShowKeys, nullptr, nullptr, &Form::ShowKeys},
        {Command::None, ui_->cmdRefresh, "refresh", &Form::cmdRefresh_Click},
        {Command::FullScreen, ui_->cmdHideMenu, "full-screen", &Form::cmdHideMenu_Click},
        {Command::Close, ui_->cmdClose, "exit", &Form::CloseViewer},
        {Command::PreviousPictures, nullptr, nullptr, &Form::ShowPreviousPictures},
        {Command::ZoomPixels, nullptr, nullptr, &Form::ZoomPixels},
        {Command::SwitchPlace, nullptr, nullptr, &Form::SwitchPlace},
        {Command::PressControl, nullptr, nullptr, &Form::PressFocusedControl},
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
    // Pictures outside the story that are being described stay until that is done.
    new UndoWindow(this, [this] {
        if (reader_.GetMode() != StoryMode::Selection || IsInFront())
            ShowAfterUndo(reader_);
    });
}

void frmReelvane::TakeClicksOf(StoryPage* page)
{
    connect(page, &StoryPage::PicturePressed, this, [this](int index, Qt::MouseButton button) {
        RunGuarded([&] { imgImage_MouseDown(index, button); });
    });
    connect(page, &StoryPage::FullSizePressed, this,
            [this](Qt::MouseButton button) { RunGuarded([&] { imgFullSize_MouseDown(button); }); });
    connect(page, &StoryPage::WheelTurned, this,
            [this](bool isAway) { RunGuarded([&] { imgImage_MouseWheel(isAway); }); });
    connect(page, &StoryPage::FullSizeTurned, this, [this](bool isAway, const QPointF& at) {
        RunGuarded([&] { reader_.GetLargePicture().Step(isAway ? 1 : -1, at); });
    });
    connect(page, &StoryPage::FullSizeDragged, this,
            [this](const QPointF& by) { reader_.GetLargePicture().Move(by); });
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

void frmReelvane::ShowKeys()
{
    const auto pause = reader_.GetAutoview().Pause();
    KeySheet({ViewerKeySection()}, DisplayForm->window()).exec();
}

void frmReelvane::FindPictures()
{
    FindForReader(reader_, DisplayForm->window());
}

void frmReelvane::LinkPicture()
{
    const bool isStory = reader_.GetMode() == StoryMode::Story;
    const qint32 paragraph = isStory ? CurrentParagraph : ParagraphToLink;
    DisplayForm->ShowNews(SwitchLink(paragraph, DisplayForm->GetFileMeant()));
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

void frmReelvane::imgImage_MouseWheel(bool isAway)
{
    Run(isAway ? ViewerCommand::PreviousPictures : ViewerCommand::NextPictures);
}

void frmReelvane::ZoomPixels()
{
    LargePicture& large = reader_.GetLargePicture();
    const QPoint pointer = DisplayForm->mapFromGlobal(QCursor::pos());
    large.Switch(DisplayForm->rect().contains(pointer) ? QPointF(pointer) : large.GetMiddle());
}

// By a tenth of the page. The picture goes the other way than what is seen of it.
bool frmReelvane::MovePicture(int arrow)
{
    const double across = DisplayForm->width() / 10.0;
    const double down = DisplayForm->height() / 10.0;
    const QHash<int, QPointF> ways{{Qt::Key_Left, {across, 0}},
                                   {Qt::Key_Right, {-across, 0}},
                                   {Qt::Key_Up, {0, down}},
                                   {Qt::Key_Down, {0, -down}}};
    reader_.GetLargePicture().Move(ways[arrow]);
    return true;
}

// A button that has the focus, or a picture outside the story.
void frmReelvane::PressFocusedControl()
{
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (button && !IsFullScreenOpen())
        button->click();
    else if (reader_.GetMode() == StoryMode::Selection)
        imgImage_MouseDown(DisplayForm->GetPictureMeant(), Qt::RightButton);
}

const frmReelvane::Control* frmReelvane::ControlOf(ViewerCommand command) const
{
    const auto control =
        std::find_if(controls_.begin(), controls_.end(),
                     [command](const Control& each) { return each.command == command; });
    return command == ViewerCommand::None || control == controls_.end() ? nullptr : &*control;
}

void frmReelvane::Run(ViewerCommand command)
{
    const auto pause = reader_.GetAutoview().Pause();
    if (const Control* control = ControlOf(command))
        (this->*control->handler)();
}

bool frmReelvane::Form_KeyDown(const QKeyEvent& key)
{
    const ViewerCommand command = CommandOf(key);
    if (command == ViewerCommand::Leave)
        return false;
    if (command == ViewerCommand::MovePicture)
        return MovePicture(key.key());
    // Autoview goes on there, as it does after a click on the button.
    if (command == ViewerCommand::FullScreen) {
        cmdHideMenu_Click();
        return true;
    }
    Run(command);
    return ControlOf(command);
}

void frmReelvane::contextMenuEvent(QContextMenuEvent* event)
{
    ShowMenu(event->globalPos());
}

void frmReelvane::ShowMenu(const QPoint& place)
{
    const ViewerCommand command = ChooseInMenu(place);
    const bool isWayBack = command == ViewerCommand::Close || command == ViewerCommand::FullScreen;
    RunGuarded([&] {
        if (isWayBack && IsFullScreenOpen())
            DisplayForm->window()->close();
        else if (command == ViewerCommand::FullScreen)
            cmdHideMenu_Click();
        else
            Run(command);
    });
}

// Of what keys do, as far as no button refuses it.
ViewerCommand frmReelvane::ChooseInMenu(const QPoint& place)
{
    const auto pause = reader_.GetAutoview().Pause();
    QMenu menu(DisplayForm);
    menu.setObjectName(QStringLiteral("mnuViewer"));
    for (const ViewerKey& row : ViewerKeys()) {
        const Control* control = ControlOf(row.command);
        const QPushButton* button = control ? control->button : nullptr;
        if (!row.isInMenu || !control || (button && button->isHidden()))
            continue;
        QAction* action = menu.addAction(row.GetText() + u'\t' + row.GetNames());
        action->setEnabled(!button || button->isEnabled());
        action->setData(int(row.command));
    }
    const QAction* chosen = menu.exec(place);
    return chosen ? ViewerCommand(chosen->data().toInt()) : ViewerCommand::None;
}
