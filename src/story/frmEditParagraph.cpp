// SPDX-License-Identifier: MIT
#include "story/frmEditParagraph.h"
#include "ui_frmEditParagraph.h"

#include "catalogue/UndoWindow.h"
#include "catalogue/frmEditLabels.h"
#include "core/ChapterChain.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/ButtonMenu.h"
#include "platform/widgets/DropTarget.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/LiteralText.h"
#include "platform/widgets/WindowSize.h"
#include "story/EditorKeys.h"
#include "story/FilterCounting.h"
#include "story/MarkerInsertion.h"
#include "story/ParagraphPreview.h"
#include "story/frmOrganizeParagraphs.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QScopeGuard>
#include <QTimer>

namespace {

constexpr QSize proposedSize(1120, 780);

} // namespace

frmEditParagraph::frmEditParagraph(QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmEditParagraph>()),
      edit_({[this] { return GetContent(); },
             [this](const ParagraphContent& content) { SetContent(content); },
             [this](const ParagraphContent& content) { return Describe(content); }})
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    ui_->txtParagraphPreview->setFont(ui_->txtParagraph->font());
    ui_->txtParagraphPreview->document()->setDocumentMargin(
        ui_->txtParagraph->document()->documentMargin());
    preview_ = new ParagraphPreview({ui_->stage, ui_->lblNoPicture, ui_->chkLinkedImage,
                                     ui_->txtParagraphPreview, ui_->lblFeedback},
                                    this);
    insertion_ = new MarkerInsertion(
        {ui_->txtParagraph, ui_->lstInsertCar, ui_->cmdInsertCar, ui_->cmdCancelInsert}, this);
    counting_ = new FilterCounting(ui_->filterPanel, this);
    KeepWindowSize(this, proposedSize);
    ConnectControls();
    // Both columns start at the same height, with or without icons on their buttons.
    for (QWidget* heading :
         std::initializer_list<QWidget*>{ui_->lblText, ui_->cmdInsertCar, ui_->cmdCancelInsert})
        heading->setMinimumHeight(ui_->cmdPreview->sizeHint().height());
    LeadFromTextToFilter();
    SetPreviewMode(false);
}

frmEditParagraph::~frmEditParagraph() = default;

// As people write, with the preview after both.
void frmEditParagraph::LeadFromTextToFilter()
{
    QWidget* last = ui_->cmdFirstParagraph; // of the filter
    do
        last = last->previousInFocusChain();
    while ((last->focusPolicy() & Qt::TabFocus) == 0);
    for (QWidget* next : std::initializer_list<QWidget*>{
             ui_->cmdPreview, ui_->cmdNextImage, ui_->txtParagraphPreview, ui_->chkLinkedImage,
             ui_->cmdLinkedPictures, ui_->cmdFindPictures}) {
        setTabOrder(last, next);
        last = next;
    }
}

void frmEditParagraph::ConnectControls()
{
    using Form = frmEditParagraph;
    ConnectButtons<Form>(
        this,
        {
            {ui_->cmdFirstParagraph, "previous-chapter", &Form::cmdFirstParagraph_Click},
            {ui_->cmdPreviousParagraph, "previous-paragraph", &Form::cmdPreviousParagraph_Click},
            {ui_->cmdNextParagraph, "next-paragraph", &Form::cmdNextParagraph_Click},
            {ui_->cmdEndOfChapter, "next-chapter", &Form::cmdEndOfChapter_Click},
            {ui_->cmdCreateNext, "chapter-create", &Form::cmdCreateNext_Click},
            {ui_->cmdDelete, "delete", &Form::cmdDelete_Click},
            {ui_->cmdOrganize, "organize", &Form::cmdOrganize_Click},
            {ui_->cmdExit, "exit", &Form::cmdExit_Click},
            {ui_->cmdInsertCar, "", &Form::cmdInsertCar_Click},
            {ui_->cmdCancelInsert, "", &Form::cmdCancelInsert_Click},
            {ui_->cmdPreview, "preview", &Form::cmdPreview_Click},
            {ui_->cmdNextImage, "next-pictures", &Form::cmdNextImage_Click},
            {ui_->cmdFindPictures, "link", &Form::cmdFindPictures_Click},
            {ui_->cmdLinkedPictures, "organize", &Form::cmdLinkedPictures_Click},
        });
    connect(new DropTarget(this), &DropTarget::Dropped, this,
            [this](const QList<QUrl>& urls) { RunGuarded([&] { TakeDropped(urls); }); });
    connect(preview_, &ParagraphPreview::PicturePressed, this,
            Guarded(this, &frmEditParagraph::imgImage_MouseDown));
    connect(ui_->filterPanel, &FilterPanel::ValuesChanged, this,
            Guarded(this, &frmEditParagraph::filterPanel_Change));
    connect(ui_->filterPanel, &FilterPanel::LabelsWanted, this,
            Guarded(this, &frmEditParagraph::filterPanel_LabelsWanted));
    connect(ui_->lblText, &ClickLabel::Clicked, this,
            Guarded(this, &frmEditParagraph::lblText_Click));
    ui_->txtParagraphPreview->installEventFilter(this);
    new UndoWindow(
        this, [this] { ShowAfterUndo(); }, [this] { return SaveForUndo(); });
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
}

bool frmEditParagraph::Form_KeyDown(QKeyEvent& key)
{
    if (insertion_->UseKey(key))
        return true;
    const bool isWriting =
        focusWidget() == ui_->txtParagraph || qobject_cast<QLineEdit*>(focusWidget()) != nullptr;
    const EditorCommand command = EditorCommandOf(key, isWriting);
    if (command == EditorCommand::CreateNext)
        cmdCreateNext_Click();
    else if (command == EditorCommand::FindPictures)
        cmdFindPictures_Click();
    else if (command == EditorCommand::ShowLinked)
        cmdLinkedPictures_Click();
    else if (command == EditorCommand::FullScreen)
        SwitchFullScreen();
    else if (command == EditorCommand::ShowKeys)
        KeySheet({EditorKeySection()}, this).exec();
    else if (command == EditorCommand::Exit)
        cmdExit_Click();
    return command != EditorCommand::None;
}

// A click on a picture and one into a filter mean something else.
void frmEditParagraph::contextMenuEvent(QContextMenuEvent* event)
{
    const QWidget* below = childAt(mapFromGlobal(event->globalPos()));
    if (below && (ui_->stage->isAncestorOf(below) || ui_->filterPanel->isAncestorOf(below)))
        return;
    ButtonMenu menu(this);
    menu.AddButtons({ui_->cmdFirstParagraph, ui_->cmdPreviousParagraph, ui_->cmdNextParagraph,
                     ui_->cmdEndOfChapter});
    menu.AddButtons({ui_->cmdCreateNext, ui_->cmdDelete, ui_->cmdOrganize});
    menu.AddButtons({ui_->cmdPreview, ui_->cmdNextImage, ui_->cmdExit});
    menu.exec(event->globalPos());
}

void frmEditParagraph::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    // Later, because a window that is just being shown cannot be closed yet.
    if (!RunGuarded([this] { ShowParagraph(); }))
        QTimer::singleShot(0, this, &frmEditParagraph::LeaveUnsaved);
    ui_->txtParagraph->setFocus();
}

// A click into the preview of the text starts writing.
bool frmEditParagraph::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        txtParagraphPreview_GotFocus();
    return QDialog::eventFilter(watched, event);
}

// Later, when the preview has handled the click that gave it the focus.
void frmEditParagraph::txtParagraphPreview_GotFocus()
{
    QTimer::singleShot(0, this, Guarded(this, &frmEditParagraph::lblText_Click));
}

void frmEditParagraph::ShowParagraph()
{
    FillFromAlbum();
    ClearPreview();
}

// Everything is read before the first control is touched: a failure leaves them unchanged, and
// nothing incomplete can be saved.
void frmEditParagraph::FillFromAlbum()
{
    const QString chapter = GeneralModule::ChapterTitle(CurrentChapter);
    std::vector<TextMarker> markers = ReadTextMarkers();
    const ChapterPlace place = places_.Find(CurrentChapter, CurrentParagraph);
    const ParagraphContent content = LoadParagraph(CurrentParagraph);
    const std::optional<Paragraph> stored = ReadParagraph(CurrentParagraph);
    ui_->filterPanel->ShowLabels();
    ui_->filterPanel->SetOtherTerms(
        {.query = {.fileSelection = stored ? stored->fileSelection : QString()}});
    setWindowTitle(AsWindowTitle(tr("Edit Paragraph from Chapter '%1'").arg(chapter)));
    insertion_->SetMarkers(std::move(markers));
    edit_.Load(content);
    ShowPlace(place);
    counting_->BeginAgain();
}

void frmEditParagraph::ShowPlace(const ChapterPlace& place)
{
    const bool isKnown = place.number > 0;
    ui_->lblPlace->setText(isKnown ? tr("%1 of %2").arg(place.number).arg(place.count) : QString());
}

// The text box keeps caret and history if it already holds the text.
void frmEditParagraph::SetContent(const ParagraphContent& content)
{
    const QString text = ToDisplayMarkers(content.text, insertion_->GetMarkers());
    if (!edit_.IsLoaded() || ui_->txtParagraph->GetText() != text)
        ui_->txtParagraph->SetText(text);
    if (!edit_.IsLoaded() || ui_->filterPanel->GetValues() != content.values)
        ui_->filterPanel->SetValues(content.values);
}

void frmEditParagraph::GoTo(const ParagraphPlace& place)
{
    const ParagraphPlace former = GetPlace();
    const auto setPlace = [this](const ParagraphPlace& to) {
        CurrentChapter = to.chapter;
        CurrentParagraph = to.paragraph;
    };
    setPlace(place);
    if (place.paragraph <= 0)
        return cmdExit_Click();
    const ParagraphEdit left = edit_;
    edit_.Unload(); // the controls hold another paragraph
    auto stay = qScopeGuard([&] {
        setPlace(former);
        edit_ = left;
    });
    ShowParagraph();
    stay.dismiss();
}

// For cases where the former place cannot be kept.
void frmEditParagraph::GoToOrLeave(const std::function<ParagraphPlace()>& findPlace)
{
    auto leave = qScopeGuard([this] { LeaveUnsaved(); });
    GoTo(findPlace());
    leave.dismiss();
}

void frmEditParagraph::LeaveUnsaved()
{
    edit_.Unload();
    QDialog::reject();
}

void frmEditParagraph::cmdFirstParagraph_Click()
{
    StepTo(ChainStep::First, ui_->cmdFirstParagraph);
}

void frmEditParagraph::cmdPreviousParagraph_Click()
{
    StepTo(ChainStep::Previous, ui_->cmdPreviousParagraph);
}

void frmEditParagraph::cmdNextParagraph_Click()
{
    StepTo(ChainStep::Next, ui_->cmdNextParagraph);
}

void frmEditParagraph::cmdEndOfChapter_Click()
{
    StepTo(ChainStep::Last, ui_->cmdEndOfChapter);
}

// If there is no further paragraph, caret and preview stay.
void frmEditParagraph::StepTo(ChainStep step, const QPushButton* button)
{
    if (!edit_.SettleConflict(CurrentParagraph))
        return;
    ParagraphPlace place = GetPlace();
    SaveAndStep(place, edit_.GetDraft(), step);
    if (place != GetPlace())
        GoTo(place);
    else
        edit_.ShowSaved(CurrentParagraph);
    // After a mouse click the user continues writing; a button pressed by key has the focus.
    if (!isPreview_ && focusWidget() != button)
        ui_->txtParagraph->setFocus();
}

void frmEditParagraph::cmdCreateNext_Click()
{
    if (!edit_.SettleConflict(CurrentParagraph))
        return;
    ParagraphPlace place = GetPlace();
    const ParagraphContent content = CreateNextParagraph(place, edit_.GetDraft());
    // Not read back: its neighbours link to it only once it is saved, so it must not be lost now.
    ChapterPlace created = places_.Find(place.chapter, CurrentParagraph);
    if (created.number > 0)
        created = {created.number + 1, created.count + 1};
    CurrentParagraph = place.paragraph;
    edit_.Unload();
    edit_.Load(content);
    ShowPlace(created);
    counting_->BeginAgain();
    ClearPreview();
    ui_->txtParagraph->setFocus();
}

void frmEditParagraph::cmdDelete_Click()
{
    if (!edit_.ConfirmDeletion(CurrentParagraph))
        return;
    ParagraphPlace place = GetPlace();
    DeleteParagraph(place);
    CurrentParagraph = place.paragraph;
    GoToOrLeave([&place] { return place; });
}

void frmEditParagraph::cmdOrganize_Click()
{
    if (!SaveParagraph())
        return;
    frmOrganizeParagraphs organiser(this);
    organiser.CurrentChapter = CurrentChapter;
    organiser.CurrentParagraph = CurrentParagraph;
    organiser.exec();
    CurrentParagraph = organiser.CurrentParagraph;
    // A move may have taken the paragraph to another chapter.
    GoToOrLeave([this] {
        ParagraphPlace place = GetPlace();
        if (const std::optional<Paragraph> moved = ReadParagraph(place.paragraph))
            place.chapter = moved->chapter;
        return place;
    });
}

// Markers in the text get new names, so what was typed is saved first.
void frmEditParagraph::filterPanel_LabelsWanted()
{
    if (!SaveParagraph())
        return;
    frmEditLabels(this).exec();
    FillFromAlbum();
}

void frmEditParagraph::cmdExit_Click()
{
    reject();
}

void frmEditParagraph::cmdInsertCar_Click()
{
    insertion_->Begin();
}

void frmEditParagraph::cmdCancelInsert_Click()
{
    insertion_->Cancel();
}

ParagraphContent frmEditParagraph::GetContent() const
{
    return {ToStoredMarkers(ui_->txtParagraph->GetText(), insertion_->GetMarkers()),
            ui_->filterPanel->GetValues()};
}

// As the text box shows it.
QString frmEditParagraph::Describe(const ParagraphContent& content) const
{
    return DescribeContent(
        {ToDisplayMarkers(content.text, insertion_->GetMarkers()), content.values});
}

bool frmEditParagraph::SaveParagraph()
{
    return edit_.Save(GetPlace());
}

// What was only loaded is not written: links that a save would add are no step of the user.
bool frmEditParagraph::SaveForUndo()
{
    nearby_ = NearbyParagraphs(GetPlace());
    return !edit_.IsEdited() || SaveParagraph();
}

void frmEditParagraph::ShowAfterUndo()
{
    std::vector<qint32> nearby{CurrentParagraph};
    nearby.insert(nearby.end(), nearby_.begin(), nearby_.end());
    const qint32 returned = GeneralModule::ReturnedParagraph();
    const ParagraphPlace place = NearestPlace({CurrentChapter, returned}, nearby);
    if (place.paragraph != CurrentParagraph)
        return GoToOrLeave([&place] { return place; });
    CurrentChapter = place.chapter;
    ReadAgain();
    if (isPreview_)
        RefreshPictureList();
}

// Called however the window is left, by its frame too.
void frmEditParagraph::reject()
{
    if (edit_.SaveOrGiveUp(GetPlace()))
        QDialog::reject();
}
