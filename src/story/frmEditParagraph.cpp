// SPDX-License-Identifier: MIT
#include "story/frmEditParagraph.h"
#include "ui_frmEditParagraph.h"

#include "catalogue/frmEditLabels.h"
#include "core/Album.h"
#include "core/ChapterChain.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/KeyPreview.h"
#include "platform/widgets/LiteralText.h"
#include "platform/widgets/PictureBox.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"
#include "story/ParagraphMoves.h"
#include "story/frmOrganizeParagraphs.h"

#include <QKeyEvent>
#include <QScopeGuard>
#include <QTimer>

using GeneralModule::FindById;
using GeneralModule::ParagraphSet;

namespace {

constexpr QSize proposedSize(1120, 780);

bool IsChoosingKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

frmEditParagraph::frmEditParagraph(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmEditParagraph>())
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    ui_->txtParagraphPreview->setFont(ui_->txtParagraph->font());
    ui_->txtParagraphPreview->document()->setDocumentMargin(
        ui_->txtParagraph->document()->documentMargin());
    imgImage_ = ui_->stage->findChild<PictureBox*>();
    imgImage_->setToolTip(tr("Click to edit image"));
    KeepWindowSize(this, proposedSize);
    ConnectControls();
    // Both columns begin at one height, with and without drawings on their buttons.
    for (QWidget* heading :
         std::initializer_list<QWidget*>{ui_->lblText, ui_->cmdInsertCar, ui_->cmdCancelInsert})
        heading->setMinimumHeight(ui_->cmdPreview->sizeHint().height());
    ShowInsertList(false);
    SetPreviewMode(false);
    ShowPicture({});
}

frmEditParagraph::~frmEditParagraph() = default;

void frmEditParagraph::ConnectControls()
{
    struct Button
    {
        QPushButton* button;
        const char* icon;
        void (frmEditParagraph::*handler)();
    };
    for (const Button& entry : {
             Button{ui_->cmdFirstParagraph, "previous-chapter",
                    &frmEditParagraph::cmdFirstParagraph_Click},
             Button{ui_->cmdPreviousParagraph, "previous-paragraph",
                    &frmEditParagraph::cmdPreviousParagraph_Click},
             Button{ui_->cmdNextParagraph, "next-paragraph",
                    &frmEditParagraph::cmdNextParagraph_Click},
             Button{ui_->cmdEndOfChapter, "next-chapter", &frmEditParagraph::cmdEndOfChapter_Click},
             Button{ui_->cmdCreateNext, "chapter-create", &frmEditParagraph::cmdCreateNext_Click},
             Button{ui_->cmdDelete, "delete", &frmEditParagraph::cmdDelete_Click},
             Button{ui_->cmdOrganize, "organize", &frmEditParagraph::cmdOrganize_Click},
             Button{ui_->cmdExit, "exit", &frmEditParagraph::cmdExit_Click},
             Button{ui_->cmdInsertCar, "", &frmEditParagraph::cmdInsertCar_Click},
             Button{ui_->cmdCancelInsert, "", &frmEditParagraph::cmdCancelInsert_Click},
             Button{ui_->cmdPreview, "preview", &frmEditParagraph::cmdPreview_Click},
             Button{ui_->cmdNextImage, "next-pictures", &frmEditParagraph::cmdNextImage_Click},
         }) {
        entry.button->setIcon(ThemedIcon(QString::fromLatin1(entry.icon)));
        connect(entry.button, &QPushButton::clicked, this, Guarded(this, entry.handler));
    }
    connect(ui_->lstInsertCar, &QListWidget::itemClicked, this,
            Guarded(this, &frmEditParagraph::lstInsertCar_Click));
    connect(ui_->chkLinkedImage, &QCheckBox::toggled, this,
            Guarded(this, &frmEditParagraph::chkLinkedImage_Click));
    connect(imgImage_, &PictureBox::Pressed, this,
            Guarded(this, &frmEditParagraph::imgImage_MouseDown));
    connect(ui_->filterPanel, &FilterPanel::ValuesChanged, this,
            Guarded(this, &frmEditParagraph::filterPanel_Change));
    connect(ui_->filterPanel, &FilterPanel::LabelsWanted, this,
            Guarded(this, &frmEditParagraph::filterPanel_LabelsWanted));
    connect(ui_->lblText, &ClickLabel::Clicked, this,
            Guarded(this, &frmEditParagraph::lblText_Click));
    ui_->txtParagraphPreview->installEventFilter(this);
    new KeyPreview(this, [this](QKeyEvent& key) { return Form_KeyDown(key); });
}

// A "q" that is typed into the text is a q.
bool frmEditParagraph::Form_KeyDown(QKeyEvent& key)
{
    const bool isShortcut = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool isLetter =
        key.key() == Qt::Key_Q && !isShortcut && focusWidget() != ui_->txtParagraph;
    const bool isInList = focusWidget() == ui_->lstInsertCar;
    if (key.key() == Qt::Key_Escape && isInList) {
        cmdCancelInsert_Click();
        return true;
    }
    if (key.key() == Qt::Key_Escape || (isLetter && !key.isAutoRepeat())) {
        cmdExit_Click();
        return true;
    }
    if (isInList && IsChoosingKey(key.key())) {
        lstInsertCar_Click();
        return true;
    }
    return false;
}

void frmEditParagraph::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    // Later, because a window that is on its way to be shown cannot be closed yet.
    if (!RunGuarded([this] { ShowParagraph(); }))
        QTimer::singleShot(0, this, &frmEditParagraph::LeaveUnsaved);
    ui_->txtParagraph->setFocus();
}

// Whoever clicks into the preview of the text wants to write.
bool frmEditParagraph::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        txtParagraphPreview_GotFocus();
    return QDialog::eventFilter(watched, event);
}

// Later, when the click that brought the focus is done with the preview.
void frmEditParagraph::txtParagraphPreview_GotFocus()
{
    QTimer::singleShot(0, this, Guarded(this, &frmEditParagraph::lblText_Click));
}

void frmEditParagraph::ShowParagraph()
{
    FillFromAlbum();
    ClearPreview();
}

// Everything is read before the first control is touched: what cannot be read leaves them as they
// were, and nothing that is half there can be saved.
void frmEditParagraph::FillFromAlbum()
{
    const QString chapter = GeneralModule::ChapterTitle(CurrentChapter);
    std::vector<TextMarker> markers = ReadTextMarkers();
    const ParagraphContent content = LoadParagraph(CurrentParagraph);
    ui_->filterPanel->ShowLabels();
    setWindowTitle(
        AsWindowTitle(tr("Edit Paragraph from Chapter '") + chapter + QLatin1Char('\'')));
    markers_ = std::move(markers);
    ShowContent(content);
}

void frmEditParagraph::ShowContent(const ParagraphContent& content)
{
    SetControls(content);
    isShown_ = true;
    loaded_ = content;
    shown_ = GetContent();
}

// The text box keeps caret and history where it holds the text already.
void frmEditParagraph::SetControls(const ParagraphContent& content)
{
    const QString text = ToDisplayMarkers(content.text, markers_);
    if (!isShown_ || ui_->txtParagraph->GetText() != text)
        ui_->txtParagraph->SetText(text);
    if (!isShown_ || ui_->filterPanel->GetValues() != content.values)
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
    const bool wasShown = std::exchange(isShown_, false); // the text of another paragraph
    auto stay = qScopeGuard([&] {
        setPlace(former);
        isShown_ = wasShown;
    });
    ShowParagraph();
    stay.dismiss();
}

// For a place that there is no way back from.
void frmEditParagraph::GoToOrLeave(const std::function<ParagraphPlace()>& findPlace)
{
    auto leave = qScopeGuard([this] { LeaveUnsaved(); });
    GoTo(findPlace());
    leave.dismiss();
}

void frmEditParagraph::LeaveUnsaved()
{
    isShown_ = false;
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

// Where there is no further paragraph, caret and preview stay as they are.
void frmEditParagraph::StepTo(ChainStep step, const QPushButton* button)
{
    if (!SettleConflict())
        return;
    ParagraphPlace place = GetPlace();
    SaveAndStep(place, GetDraft(), step);
    if (place != GetPlace())
        GoTo(place);
    else
        ShowSaved();
    // Who came by mouse goes on writing; a button that was pressed by a key has the focus.
    if (!isPreview_ && focusWidget() != button)
        ui_->txtParagraph->setFocus();
}

void frmEditParagraph::cmdCreateNext_Click()
{
    if (!SettleConflict())
        return;
    ParagraphPlace place = GetPlace();
    const ParagraphContent created = CreateNextParagraph(place, GetDraft());
    // Not read back: it links to its neighbours once it is saved, so nobody may lose sight of it.
    CurrentParagraph = place.paragraph;
    isShown_ = false;
    ShowContent(created);
    ClearPreview();
    ui_->txtParagraph->setFocus();
}

void frmEditParagraph::cmdDelete_Click()
{
    if (!ConfirmDeletion())
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
        if (FindById(*ParagraphSet, place.paragraph))
            place.chapter = ParagraphSet->Number(u"Chapter");
        return place;
    });
}

// Markers in the text are named anew, so what was typed is saved first.
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

void frmEditParagraph::ShowInsertList(bool shown)
{
    ui_->lstInsertCar->setVisible(shown);
    ui_->cmdCancelInsert->setVisible(shown);
    ui_->cmdInsertCar->setVisible(!shown);
    ui_->cmdInsertCar->setEnabled(!isPreview_);
}

void frmEditParagraph::cmdInsertCar_Click()
{
    ui_->lstInsertCar->clear();
    for (const TextMarker& marker : markers_)
        ui_->lstInsertCar->addItem(marker.title);
    ShowInsertList(true);
    ui_->lstInsertCar->setCurrentRow(0);
    ui_->lstInsertCar->setFocus();
}

void frmEditParagraph::cmdCancelInsert_Click()
{
    ShowInsertList(false);
    ui_->txtParagraph->setFocus();
}

void frmEditParagraph::lstInsertCar_Click()
{
    const int row = ui_->lstInsertCar->currentRow();
    if (row < 0 || std::size_t(row) >= markers_.size())
        return;
    ui_->txtParagraph->Insert(markers_[std::size_t(row)].display);
    cmdCancelInsert_Click();
}
