// SPDX-License-Identifier: MIT
#include "viewer/frmReelvane.h"
#include "ui_frmReelvane.h"

#include "catalogue/frmEditImage.h"
#include "core/Album.h"
#include "core/PictureFile.h"
#include "core/ViewerFlags.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"
#include "story/ParagraphMarkers.h"
#include "story/PictureFilter.h"
#include "story/frmEditParagraph.h"
#include "viewer/StoryPage.h"
#include "viewer/ViewerKeys.h"

#include <QFileInfo>
#include <QScopeGuard>

using GeneralModule::ChapterSet;
using GeneralModule::FindById;
using GeneralModule::ParagraphSet;

namespace {

constexpr int mostListed = 30000; // pictures of one paragraph or selection
constexpr int mostLines = 4;
constexpr QSize proposedSize(1280, 860);

// While a window's edge is dragged, the display starts anew at most this often (milliseconds).
constexpr int resizePause = 120;

} // namespace

frmReelvane::frmReelvane(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmReelvane>())
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    DisplayForm = ui_->page;
    KeepWindowSize(this, proposedSize);
    ConnectControls();
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
             Button{ui_->cmdTimer, "timer-start", nullptr},
             Button{ui_->cmdEditParagraph, "edit-paragraph", &frmReelvane::cmdEditParagraph_Click},
             Button{ui_->cmdRefresh, "refresh", &frmReelvane::cmdRefresh_Click},
             Button{ui_->cmdHideMenu, "full-screen", nullptr},
             Button{ui_->cmdClose, "exit", &frmReelvane::CloseViewer},
         }) {
        entry.button->setIcon(ThemedIcon(QString::fromLatin1(entry.icon)));
        entry.button->setEnabled(entry.handler != nullptr);
        if (entry.handler)
            connect(entry.button, &QPushButton::clicked, this, Guarded(this, entry.handler));
    }
    connect(ui_->page, &StoryPage::PicturePressed, this, [this](int index, Qt::MouseButton button) {
        RunGuarded([&] { imgImage_MouseDown(index, button); });
    });
    connect(ui_->page, &StoryPage::LegendClicked, this,
            Guarded(this, &frmReelvane::lblLegend_Click));
    connect(ui_->page, &StoryPage::FullSizePressed, this, &frmReelvane::imgFullSize_MouseDown);
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
    resizeDelay_.setSingleShot(true);
    connect(&resizeDelay_, &QTimer::timeout, this, Guarded(this, &frmReelvane::Form_Resize));
}

void frmReelvane::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    // The window comes up first and its pictures follow; later sizes of one drag are gathered.
    const bool isDragging = sinceResize_.isValid() && sinceResize_.elapsed() < resizePause;
    resizeDelay_.start(isDragging ? resizePause : 0);
}

void frmReelvane::closeEvent(QCloseEvent* event)
{
    resizeDelay_.stop();
    GeneralModule::AutoviewOn = false;
    QDialog::closeEvent(event);
}

void frmReelvane::Form_Resize()
{
    sinceResize_.start();
    Nblines = 1;
    ui_->cmdRefresh->setVisible(CurrentChapter == 0);
    ui_->cmdEditParagraph->setEnabled(CurrentChapter != 0);
    if (CurrentChapter != 0) {
        DisplayForm->SetPictureToolTip(tr("Click to edit image"));
        DisplayChapter();
    } else {
        CurrentParagraph = 0;
        DisplayForm->SetPictureToolTip(tr("Click to index picture"));
        DisplayUndefined(FileSelection, mostListed);
    }
    sinceResize_.start();
}

void frmReelvane::DisplayChapter()
{
    if (CurrentChapter == 0)
        return;
    StoryPosition position{CurrentChapter, 0};
    GoToFirstParagraph(position);
    CurrentParagraph = position.paragraph;
    if (CurrentParagraph != 0)
        DisplayParagraph();
    else
        DisplayEmptyChapter();
}

void frmReelvane::DisplayEmptyChapter()
{
    const bool isKnown = FindById(*ChapterSet, CurrentChapter);
    const QString name = isKnown ? ChapterSet->TextOrEmpty(u"Name") : QString();
    DisplayForm->window()->setWindowTitle(name);
    const QString invitation =
        QStringLiteral("Click HERE to create first paragraph of the new chapter '") + name +
        QLatin1Char('\'');
    DisplayUndefined(QStringLiteral("*"), mostListed);
    text_ = invitation;
    DisplayForm->SetLegend(text_);
    DisplayForm->SetLegendAlignment(Qt::AlignHCenter);
}

void frmReelvane::DisplayParagraph()
{
    if (CurrentParagraph == 0 || !FindById(*ParagraphSet, CurrentParagraph))
        return;
    text_ = ParagraphSet->TextOrEmpty(u"Text");
    const qint32 chapter = ParagraphSet->Number(u"Chapter");
    if (chapter > 0 && FindById(*ChapterSet, chapter))
        DisplayForm->window()->setWindowTitle(ChapterSet->TextOrEmpty(u"Name"));
    DisplayForm->Arrange(text_);
    FillPictureList(*ParagraphSet, mostListed);
    GeneralModule::PictureAtRandom = true;
    DisplayImagesFromList(false);
    ShowText(false);
    DisplayForm->SetLegendAlignment(Nblines < 3 ? Qt::AlignHCenter : Qt::AlignLeft);
}

// A filter that the engine refuses costs the paragraph its pictures, not its text.
void frmReelvane::FillPictureList(RecordSet& paragraph, int maxImages)
{
    const BusyPointer busy;
    displayed_.clear();
    RunGuarded([&] {
        BuildPictureList(paragraph, lstImage_, maxImages, [this](int count) {
            DisplayForm->ShowFeedback(QString::number(count) + QStringLiteral(" images found"));
        });
    });
}

void frmReelvane::DisplayUndefined(const QString& fileSelection, int maxImages)
{
    // The selection is written as a paragraph that is never saved, so that one routine finds the
    // pictures of both.
    ParagraphSet->AddNew();
    const auto cancel = qScopeGuard([] { ParagraphSet->CancelUpdate(); });
    for (int column = 0; column < 12; ++column)
        ParagraphSet->Set(QStringLiteral("Car%1").arg(column), ImageSelection);
    ParagraphSet->Set(u"FileSelection", fileSelection);
    text_.clear();
    DisplayForm->Arrange(text_);
    FillPictureList(*ParagraphSet, maxImages);
    DisplayImagesFromList(false);
}

void frmReelvane::DisplayImagesFromList(bool displayAgain)
{
    const BusyPointer busy;
    if (displayAgain) {
        QStringList files;
        for (const ShownPicture& picture : displayed_)
            files += picture.file;
        lstImage_.PutBack(files);
    }
    const ScreenShape shape = DisplayForm->GetShape(Nblines);
    displayed_ = FillScreen(lstImage_, shape);
    DisplayForm->ShowPictures(displayed_, DecodePictures(displayed_, shape.pixelRatio));
    LastImageDisplayed = displayed_.empty() ? QString() : displayed_.back().file;
}

void frmReelvane::ShowText(bool isBrowsing)
{
    if (isBrowsing)
        DisplayForm->SetLegend(QString::number(lstImage_.Count()) + QStringLiteral(" images left"));
    else
        DisplayForm->SetLegend(FillPictureMarkers(text_, LastImageDisplayed));
}

void frmReelvane::FollowStep(StoryStep step, const StoryPosition& position)
{
    CurrentChapter = position.chapter;
    CurrentParagraph = position.paragraph;
    switch (step) {
    case StoryStep::Paragraph:
        return DisplayParagraph();
    case StoryStep::Chapter:
        return DisplayChapter();
    case StoryStep::Close:
        return CloseViewer();
    case StoryStep::Nothing:
        break;
    }
}

void frmReelvane::DisplayNextParagraph()
{
    StoryPosition position{CurrentChapter, CurrentParagraph};
    const StoryStep step = StepToNextParagraph(position);
    FollowStep(step, position);
}

void frmReelvane::DisplayPreviousParagraph()
{
    StoryPosition position{CurrentChapter, CurrentParagraph};
    const StoryStep step = StepToPreviousParagraph(position);
    FollowStep(step, position);
}

void frmReelvane::GoToNextChapter()
{
    if (CurrentChapter == 0)
        return;
    StoryPosition position{CurrentChapter, CurrentParagraph};
    const StoryStep step = StepToNextChapter(position);
    FollowStep(step, position);
}

void frmReelvane::GoToTopOfChapter()
{
    if (CurrentChapter == 0)
        return;
    StoryPosition position{CurrentChapter, CurrentParagraph};
    const StoryStep step = StepToTopOfChapter(position);
    FollowStep(step, position);
}

void frmReelvane::CloseViewer()
{
    close();
}

// Pictures outside the story belong to no paragraph; the first one of a chapter is made here.
bool frmReelvane::HasParagraphToEdit()
{
    if (CurrentChapter == 0)
        return false;
    if (CurrentParagraph > 0)
        return true;
    ParagraphPlace place{CurrentChapter, 0};
    CreateFirstParagraph(place);
    CurrentParagraph = place.paragraph;
    return CurrentParagraph > 0;
}

void frmReelvane::EditCurrentParagraph()
{
    if (!HasParagraphToEdit())
        return;
    // Autoview is paused here,
    frmEditParagraph editor(this);
    editor.CurrentChapter = CurrentChapter;
    editor.CurrentParagraph = CurrentParagraph;
    editor.exec();
    CurrentChapter = editor.CurrentChapter;
    CurrentParagraph = editor.CurrentParagraph;
    // and goes on here if it was on.
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
    if (lstImage_.Count() == 0)
        return DisplayNextParagraph();
    DisplayImagesFromList(false);
    if (displayed_.empty() && CurrentParagraph > 0)
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

void frmReelvane::cmdRefresh_Click()
{
    DisplayUndefined(FileSelection, mostListed);
}

void frmReelvane::imgImage_MouseDown(int index, Qt::MouseButton button)
{
    if (std::size_t(index) >= displayed_.size())
        return;
    if (button == Qt::LeftButton)
        ShowLargePicture(displayed_[std::size_t(index)]);
    else if (button == Qt::RightButton)
        IndexPicture(displayed_[std::size_t(index)].file);
}

void frmReelvane::IndexPicture(const QString& file)
{
    // A story still shows the pictures that the indexing window went on to; a selection to be
    // indexed does not come back to them.
    PictureList upcoming = lstImage_;
    const auto isThere = [](const QString& picture) {
        return QFileInfo::exists(GeneralModule::ResolvePictureFile(picture));
    };
    frmEditImage window(this);
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
        lstImage_ = upcoming;
    DropTakenOut(window.TakenOut);
    ShowText(isBrowsing);
}

void frmReelvane::DropTakenOut(const QStringList& files)
{
    if (files.isEmpty())
        return;
    for (const QString& file : files)
        lstImage_.Remove(file);
    std::erase_if(displayed_,
                  [&files](const ShownPicture& picture) { return files.contains(picture.file); });
    DisplayImagesFromList(true);
}

void frmReelvane::ShowLargePicture(const ShownPicture& picture)
{
    const ScreenShape shape = DisplayForm->GetShape(0);
    const ShownPicture large{picture.file, picture.path, PlaceOfSinglePicture(picture.path, shape)};
    DisplayForm->ShowFullSize(large, DecodePictures({large}, shape.pixelRatio).front());
    const QString text = CurrentParagraph > 0 ? text_ : QStringLiteral("<[Picture Legend]>");
    DisplayForm->SetLegend(FillPictureMarkers(text, picture.file));
}

void frmReelvane::imgFullSize_MouseDown(Qt::MouseButton)
{
    DisplayForm->LeaveFullSize();
    RunGuarded([this] { ShowText(CurrentChapter < 1); });
}

bool frmReelvane::Form_KeyDown(QKeyEvent& key)
{
    switch (CommandOf(key)) {
    case ViewerCommand::NextPictures:
        cmdNextImages_Click();
        return true;
    case ViewerCommand::NextParagraph:
        DisplayNextParagraph();
        return true;
    case ViewerCommand::PreviousParagraph:
        DisplayPreviousParagraph();
        return true;
    case ViewerCommand::NextChapter:
        GoToNextChapter();
        return true;
    case ViewerCommand::TopOfChapter:
        GoToTopOfChapter();
        return true;
    case ViewerCommand::ZoomOut:
        cmdZoomOut_Click();
        return true;
    case ViewerCommand::ZoomIn:
        cmdZoomIn_Click();
        return true;
    case ViewerCommand::Close:
        CloseViewer();
        return true;
    case ViewerCommand::EditParagraph:
        cmdEditParagraph_Click();
        return true;
    case ViewerCommand::SwitchAutoview:
    case ViewerCommand::Leave:
    case ViewerCommand::None:
        break;
    }
    return false;
}
