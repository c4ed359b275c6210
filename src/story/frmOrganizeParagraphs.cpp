// SPDX-License-Identifier: MIT
#include "story/frmOrganizeParagraphs.h"
#include "ui_frmOrganizeParagraphs.h"

#include "catalogue/UndoWindow.h"
#include "core/Album.h"
#include "core/ChapterChain.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/LiteralText.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/RowDrag.h"
#include "platform/widgets/WindowSize.h"
#include "story/OrganizerKeys.h"
#include "story/ParagraphMoves.h"

#include <QMenu>
#include <QScopeGuard>

#include <algorithm>

namespace {

constexpr QSize proposedSize(860, 560);

} // namespace

frmOrganizeParagraphs::frmOrganizeParagraphs(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmOrganizeParagraphs>()), menu_(new QMenu(this))
{
    ui_->setupUi(this);
    drag_ = new RowDrag(ui_->lstParagraph);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    QFont heading = ui_->lblChapter->font();
    heading.setPointSizeF(heading.pointSizeF() * 1.25);
    heading.setBold(true);
    ui_->lblChapter->setFont(heading);
    KeepWindowSize(this, proposedSize);
    ConnectControls();
    ConnectEntries();
    MakeMenu();
    new WindowKeys(this, OrganizerKeys());
    new UndoWindow(this, [this] { ShowAfterUndo(); });
}

frmOrganizeParagraphs::~frmOrganizeParagraphs() = default;

void frmOrganizeParagraphs::ConnectControls()
{
    using Form = frmOrganizeParagraphs;
    ConnectButtons<Form>(
        this, {
                  {ui_->cmdUp, "previous-paragraph", &Form::cmdUp_Click},
                  {ui_->cmdDown, "next-paragraph", &Form::cmdDown_Click},
                  {ui_->cmdMoveUp, "move-up", &Form::cmdMoveUp_Click},
                  {ui_->cmdMoveDown, "move-down", &Form::cmdMoveDown_Click},
                  {ui_->cmdPreviousChapter, "previous-chapter", &Form::ShowPreviousChapter},
                  {ui_->cmdNextChapter, "next-chapter", &Form::ShowNextChapter},
                  {ui_->cmdExit, "exit", &Form::cmdExit_Click},
              });
    connect(ui_->lstParagraph, &QListWidget::currentRowChanged, this,
            Guarded(this, &frmOrganizeParagraphs::lstParagraph_Click));
    connect(ui_->lstParagraph, &QListWidget::itemDoubleClicked, this,
            Guarded(this, &frmOrganizeParagraphs::lstParagraph_DblClick));
    connect(drag_, &RowDrag::Dropped, this,
            [this](int from, int to) { RunGuarded([&] { MoveRow(from, to); }); });
}

void frmOrganizeParagraphs::ConnectEntries()
{
    using Form = frmOrganizeParagraphs;
    struct Entry
    {
        QAction* action;
        const char* icon;
        void (Form::*handler)();
    };
    for (const Entry& entry : std::initializer_list<Entry>{
             {ui_->mnuUp, "previous-paragraph", &Form::cmdUp_Click},
             {ui_->mnuDown, "next-paragraph", &Form::cmdDown_Click},
             {ui_->mnuEditParagraph, "edit-paragraph", &Form::lstParagraph_DblClick},
             {ui_->mnuMoveUp, "move-up", &Form::cmdMoveUp_Click},
             {ui_->mnuMoveDown, "move-down", &Form::cmdMoveDown_Click},
             {ui_->mnuPreviousChapter, "previous-chapter", &Form::ShowPreviousChapter},
             {ui_->mnuNextChapter, "next-chapter", &Form::ShowNextChapter},
             {ui_->mnuKeys, "", &Form::mnuKeys_Click}}) {
        entry.action->setIcon(ThemedIcon(QString::fromLatin1(entry.icon)));
        connect(entry.action, &QAction::triggered, this, Guarded(this, entry.handler));
    }
}

void frmOrganizeParagraphs::MakeMenu()
{
    menu_->setObjectName(QStringLiteral("mnuParagraph"));
    menu_->addAction(ui_->mnuEditParagraph);
    menu_->addSeparator();
    menu_->addActions({ui_->mnuMoveUp, ui_->mnuMoveDown});
    menu_->addSeparator();
    menu_->addActions({ui_->mnuPreviousChapter, ui_->mnuNextChapter});
    menu_->addSeparator();
    menu_->addAction(ui_->mnuKeys);
    menu_->setToolTipsVisible(true);
    connect(
        ui_->lstParagraph, &QListWidget::customContextMenuRequested, this,
        [this](QPoint place) { menu_->popup(ui_->lstParagraph->viewport()->mapToGlobal(place)); });
}

void frmOrganizeParagraphs::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    RunGuarded([this] { RefreshParagraphList(); });
    ui_->lstParagraph->setFocus();
}

void frmOrganizeParagraphs::RefreshParagraphList()
{
    const BusyPointer busy;
    // Everything is read first, so that a failure leaves the list unchanged.
    const QString chapter = GeneralModule::ChapterTitle(CurrentChapter);
    const std::vector<ParagraphLine> lines = ListParagraphs(CurrentChapter);
    setWindowTitle(AsWindowTitle(tr("Organize Paragraphs from Chapter '%1'").arg(chapter)));
    ui_->lblChapter->setText(chapter);
    const QSignalBlocker quiet(ui_->lstParagraph);
    ui_->lstParagraph->clear();
    paragraphs_.clear();
    QStringList texts;
    for (const ParagraphLine& line : lines) {
        paragraphs_.push_back(line.paragraph);
        texts += line.text;
    }
    ui_->lstParagraph->addItems(texts);
    const auto current = std::find(paragraphs_.begin(), paragraphs_.end(), CurrentParagraph);
    Select(current == paragraphs_.end() ? -1 : int(current - paragraphs_.begin()));
    RefreshButtons();
}

// In a chapter reached only by paging no line is selected, so nothing can be moved.
void frmOrganizeParagraphs::RefreshButtons()
{
    const bool isSelected = ui_->lstParagraph->currentRow() >= 0;
    const bool isReadOnly = GeneralModule::IsAlbumReadOnly();
    const QString reason = isReadOnly ? GeneralModule::ReadOnlyReason() : QString();
    for (QPushButton* button : {ui_->cmdMoveUp, ui_->cmdMoveDown})
        OfferUnless(*button, isSelected, reason);
    for (QAction* entry : {ui_->mnuMoveUp, ui_->mnuMoveDown})
        OfferUnless(*entry, isSelected, reason);
    drag_->Allow(!isReadOnly);
}

void frmOrganizeParagraphs::ShowPreviousChapter()
{
    ShowChapter(GeneralModule::ChapterLeadingTo(CurrentChapter));
}

void frmOrganizeParagraphs::ShowNextChapter()
{
    ShowChapter(GeneralModule::NextChapter(CurrentChapter));
}

// The list follows its paragraph; a chapter that is gone gives way to the first one.
void frmOrganizeParagraphs::ShowAfterUndo()
{
    const ParagraphPlace place = NearestPlace({CurrentChapter, CurrentParagraph}, {});
    CurrentParagraph = place.paragraph;
    CurrentChapter =
        GeneralModule::HasChapter(place.chapter) ? place.chapter : GeneralModule::FirstChapter();
    RefreshParagraphList();
}

void frmOrganizeParagraphs::ShowChapter(qint32 chapter)
{
    if (chapter == 0)
        return;
    auto stay = qScopeGuard([this, former = CurrentChapter] { CurrentChapter = former; });
    CurrentChapter = chapter;
    RefreshParagraphList();
    stay.dismiss();
}

void frmOrganizeParagraphs::lstParagraph_Click()
{
    const int row = ui_->lstParagraph->currentRow();
    if (row >= 0 && std::size_t(row) < paragraphs_.size())
        CurrentParagraph = paragraphs_[std::size_t(row)];
    RefreshButtons();
}

void frmOrganizeParagraphs::lstParagraph_DblClick()
{
    lstParagraph_Click();
    accept();
}

void frmOrganizeParagraphs::Select(int row)
{
    ui_->lstParagraph->setCurrentRow(row);
    if (row >= 0)
        ui_->lstParagraph->scrollToItem(ui_->lstParagraph->item(row));
}

void frmOrganizeParagraphs::cmdUp_Click()
{
    if (ui_->lstParagraph->currentRow() > 0)
        Select(ui_->lstParagraph->currentRow() - 1);
}

void frmOrganizeParagraphs::cmdDown_Click()
{
    if (ui_->lstParagraph->currentRow() + 1 < ui_->lstParagraph->count())
        Select(ui_->lstParagraph->currentRow() + 1);
}

// The list follows a paragraph that moved into another chapter.
void frmOrganizeParagraphs::Move(const std::function<bool(ParagraphPlace& place)>& moveParagraph)
{
    ParagraphPlace place{CurrentChapter, CurrentParagraph};
    if (ui_->lstParagraph->currentRow() < 0 || !moveParagraph(place))
        return;
    CurrentChapter = place.chapter;
    RefreshParagraphList();
}

void frmOrganizeParagraphs::cmdMoveUp_Click()
{
    Move(MoveParagraphUp);
}

void frmOrganizeParagraphs::cmdMoveDown_Click()
{
    Move(MoveParagraphDown);
}

// The list may have been filled anew since the row was dropped.
void frmOrganizeParagraphs::MoveRow(int from, int to)
{
    if (from == ui_->lstParagraph->currentRow())
        Move([&](ParagraphPlace& place) { return MoveParagraphBy(place, to - from); });
}

void frmOrganizeParagraphs::cmdExit_Click()
{
    accept();
}

void frmOrganizeParagraphs::mnuKeys_Click()
{
    KeySheet({DescribeKeys(OrganizerKeys())}, this).exec();
}
