// SPDX-License-Identifier: MIT
#include "catalogue/frmTakeFromFiles.h"
#include "ui_frmTakeFromFiles.h"

#include "catalogue/ChangeText.h"
#include "catalogue/ColumnTitles.h"
#include "catalogue/UndoWindow.h"
#include "core/Album.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/metadata/MetadataStream.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/OfferedControl.h"
#include "platform/widgets/TickDelegate.h"
#include "platform/widgets/WindowSize.h"

#include <QHeaderView>

using GeneralModule::UndoStep;

namespace {

constexpr QSize proposedSize(720, 620);

// Entries of the list of ways for keywords; the columns follow.
constexpr int noKeywords = 0;
constexpr int knownKeywords = 1;
constexpr int firstKeywordColumn = 2;

} // namespace

frmTakeFromFiles::frmTakeFromFiles(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmTakeFromFiles>())
{
    using Form = frmTakeFromFiles;
    ui_->setupUi(this);
    leftOut_ = {QLatin1String(MetadataStream::fileTimeField)};
    KeepWindowSize(this, proposedSize);
    ui_->treFields->setItemDelegate(new TickDelegate(ui_->treFields));
    ui_->treFields->header()->setStretchLastSection(false);
    ui_->treFields->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->treFields->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    ConnectButtons<Form>(this, {
                                   {ui_->cmdStop, "timer-stop", &Form::cmdStop_Click},
                                   {ui_->cmdTake, "index-pictures", &Form::cmdTake_Click},
                                   {ui_->cmdExit, "exit", &Form::cmdExit_Click},
                               });
    new UndoWindow(this);
    const auto show = Guarded(this, &Form::ShowPlan);
    connect(ui_->chkCaptions, &QCheckBox::toggled, this, show);
    for (QComboBox* box : {ui_->cboKeywords, ui_->cboDatePart, ui_->cboDateColumn})
        connect(box, &QComboBox::currentIndexChanged, this, show);
    connect(ui_->treFields, &QTreeWidget::itemChanged, this, show);
}

frmTakeFromFiles::~frmTakeFromFiles() = default;

void frmTakeFromFiles::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous() && !taking_)
        RunGuarded([this] { Form_Load(); });
}

void frmTakeFromFiles::Form_Load()
{
    QStringList titles;
    for (int column = 0; column < columnCount; ++column)
        titles += DistinctTitle(column);
    auto taking = std::make_unique<FileTaking>(Pictures);
    isFilling_ = true;
    ui_->cboKeywords->addItems({tr("Not taken"), tr("To characteristics that have such a value")});
    for (const QString& title : titles) {
        ui_->cboKeywords->addItem(tr("To %1").arg(title));
        ui_->cboDateColumn->addItem(tr("To %1").arg(title));
    }
    ui_->cboKeywords->setCurrentIndex(knownKeywords);
    isFilling_ = false;
    taking_ = std::move(taking);
    ShowRead();
    ShowPlan();
    work_.Begin([this](std::chrono::milliseconds time) { return ReadMore(time); });
}

// What goes wrong is shown, and ends the reading; what was read can be taken.
bool frmTakeFromFiles::ReadMore(std::chrono::milliseconds time)
{
    bool goesOn = false;
    const bool isSound = RunGuarded([&] { goesOn = taking_->Work(time); });
    isDone_ = !isSound || !goesOn;
    ShowRead();
    if (isDone_)
        RunGuarded([this] { ShowPlan(); });
    return !isDone_;
}

void frmTakeFromFiles::ShowRead()
{
    const int unreadable = taking_->GetUnreadable();
    QString text =
        tr("%1 of %n file(s) read", nullptr, taking_->GetCount()).arg(taking_->GetRead());
    if (unreadable > 0)
        text += QStringLiteral("; ") + tr("%n cannot be read to the end", nullptr, unreadable);
    ui_->lblRead->setText(text);
    ui_->cmdStop->setEnabled(!isDone_);
    if (!isDone_)
        ui_->cmdTake->setEnabled(false);
}

TakingChoices frmTakeFromFiles::GetChoices() const
{
    const int keywords = ui_->cboKeywords->currentIndex();
    TakingChoices choices;
    choices.takesCaptions = ui_->chkCaptions->isChecked();
    choices.keywords = keywords == noKeywords      ? TakingChoices::Keywords::None
                       : keywords == knownKeywords ? TakingChoices::Keywords::WhereKnown
                                                   : TakingChoices::Keywords::IntoColumn;
    choices.keywordColumn = std::max(keywords - firstKeywordColumn, 0);
    choices.datePart = TakingChoices::DatePart(ui_->cboDatePart->currentIndex());
    choices.dateColumn = ui_->cboDateColumn->currentIndex();
    choices.leftOut = leftOut_;
    return choices;
}

void frmTakeFromFiles::AddFields(const QString& kind, const std::map<QString, int>& held,
                                 const std::map<QString, int>& taken)
{
    for (const auto& [field, count] : held) {
        auto* item = new QTreeWidgetItem(ui_->treFields);
        const auto from = taken.find(field);
        const bool isFileTime = field == QLatin1String(MetadataStream::fileTimeField);
        item->setText(0, kind.arg(isFileTime ? tr("of the last change of the file") : field));
        item->setText(1, locale().toString(count));
        item->setText(2, locale().toString(from == taken.end() ? 0 : from->second));
        item->setData(0, Qt::UserRole, field);
        item->setCheckState(0, leftOut_.contains(field) ? Qt::Unchecked : Qt::Checked);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    }
}

// The ticks are those of the user; the rows are made anew, and the current one stays.
void frmTakeFromFiles::ShowFields()
{
    QTreeWidget* tree = ui_->treFields;
    const int current = tree->indexOfTopLevelItem(tree->currentItem());
    const TakingPlan held = taking_->Fields();
    isFilling_ = true;
    tree->clear();
    AddFields(tr("Caption: %1"), held.captionFields, plan_.captionFields);
    AddFields(tr("Keywords: %1"), held.keywordFields, plan_.keywordFields);
    AddFields(tr("Date: %1"), held.dateFields, plan_.dateFields);
    tree->setCurrentItem(tree->topLevelItem(current));
    isFilling_ = false;
}

void frmTakeFromFiles::ShowPlan()
{
    if (isFilling_ || !taking_)
        return;
    const BusyPointer busy;
    for (int row = 0; row < ui_->treFields->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* item = ui_->treFields->topLevelItem(row);
        const QString field = item->data(0, Qt::UserRole).toString();
        if (item->checkState(0) == Qt::Unchecked)
            leftOut_.insert(field);
        else
            leftOut_.remove(field);
    }
    if (isDone_)
        plan_ = taking_->Plan(GetChoices());
    QString summary = isDone_ ? ChangeText(plan_.changes) : tr("The files are being read...");
    if (plan_.keywordsLeft > 0)
        summary += u'\n' + tr("%n keyword(s) find no place.", nullptr, plan_.keywordsLeft);
    ShowFields();
    ui_->lblSummary->setText(summary);
    ui_->cboDateColumn->setEnabled(ui_->cboDatePart->currentIndex() > 0);
    const QString reason =
        GeneralModule::IsAlbumReadOnly() ? GeneralModule::ReadOnlyReason() : QString();
    OfferUnless(*ui_->cmdTake, isDone_ && !plan_.changes.empty(), reason);
}

void frmTakeFromFiles::cmdStop_Click()
{
    work_.Stop();
    isDone_ = true;
    ShowRead();
    ShowPlan();
}

void frmTakeFromFiles::cmdTake_Click()
{
    const BusyPointer busy;
    const UndoStep step(UndoStep::tr("Take from Files"), GeneralModule::StepCounts::Shown);
    const auto result = ApplyChanges(plan_.changes);
    if (!result)
        return;
    Tell(ResultText(*result));
    accept();
}

void frmTakeFromFiles::cmdExit_Click()
{
    reject();
}
