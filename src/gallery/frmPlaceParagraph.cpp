// SPDX-License-Identifier: MIT
#include "gallery/frmPlaceParagraph.h"
#include "ui_frmPlaceParagraph.h"

#include "catalogue/UndoWindow.h"
#include "core/ChapterChain.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/WindowSize.h"
#include "story/ParagraphMoves.h"

namespace {

constexpr QSize proposedSize(560, 420);

} // namespace

frmPlaceParagraph::frmPlaceParagraph(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmPlaceParagraph>())
{
    using Form = frmPlaceParagraph;
    ui_->setupUi(this);
    KeepWindowSize(this, proposedSize);
    ConnectButtons<Form>(this,
                         {{ui_->cmdMakeParagraph, "chapter-create", &Form::cmdMakeParagraph_Click},
                          {ui_->cmdCancel, "", &Form::cmdCancel_Click}});
    new UndoWindow(this, [this] { Form_Load(); });
    connect(ui_->cboChapter, &QComboBox::currentIndexChanged, this,
            Guarded(this, &Form::cboChapter_Click));
    connect(ui_->lstParagraph, &QListWidget::itemDoubleClicked, this,
            Guarded(this, &Form::cmdMakeParagraph_Click));
}

frmPlaceParagraph::~frmPlaceParagraph() = default;

void frmPlaceParagraph::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        RunGuarded([this] { Form_Load(); });
}

void frmPlaceParagraph::Form_Load()
{
    ui_->cboChapter->clear();
    for (const GeneralModule::Chapter& chapter : GeneralModule::Chapters())
        ui_->cboChapter->addItem(chapter.title, chapter.id);
    ui_->cmdMakeParagraph->setEnabled(ui_->cboChapter->count() > 0);
    ui_->cboChapter->setCurrentIndex(ui_->cboChapter->count() - 1);
}

// Proposes the chapter's end.
void frmPlaceParagraph::cboChapter_Click()
{
    ui_->lstParagraph->clear();
    ui_->lstParagraph->addItem(tr("(at the chapter's beginning)"));
    const qint32 chapter = ui_->cboChapter->currentData().toInt();
    for (const ParagraphLine& line : ListParagraphs(chapter)) {
        ui_->lstParagraph->addItem(line.text);
        ui_->lstParagraph->item(ui_->lstParagraph->count() - 1)
            ->setData(Qt::UserRole, line.paragraph);
    }
    ui_->lstParagraph->setCurrentRow(ui_->lstParagraph->count() - 1);
}

void frmPlaceParagraph::cmdMakeParagraph_Click()
{
    const QListWidgetItem* before = ui_->lstParagraph->currentItem();
    if (!before)
        return;
    Chapter = ui_->cboChapter->currentData().toInt();
    After = before->data(Qt::UserRole).toInt();
    accept();
}

void frmPlaceParagraph::cmdCancel_Click()
{
    reject();
}
