// SPDX-License-Identifier: MIT
#include "story/frmOrganizeParagraphs.h"
#include "ui_frmOrganizeParagraphs.h"

#include "core/ChapterChain.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/LiteralText.h"
#include "platform/widgets/WindowSize.h"
#include "story/ParagraphMoves.h"

#include <QKeyEvent>
#include <QScopeGuard>

#include <algorithm>

namespace {

constexpr QSize proposedSize(860, 560);

} // namespace

frmOrganizeParagraphs::frmOrganizeParagraphs(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmOrganizeParagraphs>())
{
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    QFont heading = ui_->lblChapter->font();
    heading.setPointSizeF(heading.pointSizeF() * 1.25);
    heading.setBold(true);
    ui_->lblChapter->setFont(heading);
    KeepWindowSize(this, proposedSize);
    ConnectControls();
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
    ui_->lstParagraph->installEventFilter(this);
}

void frmOrganizeParagraphs::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    RunGuarded([this] { RefreshParagraphList(); });
    ui_->lstParagraph->setFocus();
}

bool frmOrganizeParagraphs::eventFilter(QObject* watched, QEvent* event)
{
    bool used = false;
    if (event->type() == QEvent::KeyPress)
        RunGuarded([&] { used = lstParagraph_KeyDown(*static_cast<QKeyEvent*>(event)); });
    return used || QDialog::eventFilter(watched, event);
}

bool frmOrganizeParagraphs::lstParagraph_KeyDown(QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Up:
        cmdUp_Click();
        return true;
    case Qt::Key_Down:
        cmdDown_Click();
        return true;
    case Qt::Key_PageUp:
        ShowPreviousChapter();
        return true;
    case Qt::Key_PageDown:
        ShowNextChapter();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        lstParagraph_DblClick();
        return true;
    default:
        return false;
    }
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
    ui_->cmdMoveUp->setEnabled(isSelected);
    ui_->cmdMoveDown->setEnabled(isSelected);
}

void frmOrganizeParagraphs::ShowPreviousChapter()
{
    ShowChapter(GeneralModule::ChapterLeadingTo(CurrentChapter));
}

void frmOrganizeParagraphs::ShowNextChapter()
{
    ShowChapter(GeneralModule::NextChapter(CurrentChapter));
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
void frmOrganizeParagraphs::Move(bool (*moveParagraph)(ParagraphPlace& place))
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

void frmOrganizeParagraphs::cmdExit_Click()
{
    accept();
}
