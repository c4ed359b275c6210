// SPDX-License-Identifier: MIT
#include "ui/main/frmTakeChapters.h"
#include "ui_frmTakeChapters.h"

#include "catalogue/UndoWindow.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/TickDelegate.h"
#include "platform/widgets/WindowSize.h"

#include <QHeaderView>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(520, 460);

QString Report(const ChapterReturnReport& report)
{
    QStringList lines{frmTakeChapters::tr("%n chapter(s) taken back.", nullptr, report.chapters),
                      frmTakeChapters::tr("%n paragraph(s) in all.", nullptr, report.paragraphs)};
    if (report.links > 0)
        lines +=
            frmTakeChapters::tr("%n link(s) to pictures came with them.", nullptr, report.links);
    if (report.pictures > 0)
        lines += frmTakeChapters::tr("%n picture(s) that the album did not hold any more came back "
                                     "with them.",
                                     nullptr, report.pictures);
    return lines.join(u'\n');
}

} // namespace

frmTakeChapters::frmTakeChapters(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmTakeChapters>())
{
    using Form = frmTakeChapters;
    ui_->setupUi(this);
    KeepWindowSize(this, proposedSize);
    ui_->treChapters->setItemDelegate(new TickDelegate(ui_->treChapters));
    ui_->treChapters->header()->setStretchLastSection(false);
    ui_->treChapters->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->treChapters->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    ui_->treChapters->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    ConnectButtons<Form>(this, {{ui_->cmdTake, "as-before", &Form::cmdTake_Click},
                                {ui_->cmdCancel, "exit", &Form::cmdCancel_Click}});
    new UndoWindow(this);
    connect(ui_->treChapters, &QTreeWidget::itemChanged, this, Guarded(this, &Form::OfferTaking));
}

frmTakeChapters::~frmTakeChapters() = default;

void frmTakeChapters::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        RunGuarded([this] { Form_Load(); });
}

void frmTakeChapters::Form_Load()
{
    const std::vector<StateChapter> chapters =
        State ? State->Chapters() : std::vector<StateChapter>();
    ui_->treChapters->clear();
    for (const StateChapter& chapter : chapters) {
        auto* item = new QTreeWidgetItem(ui_->treChapters);
        item->setText(0, chapter.name.isEmpty() ? tr("(no name)") : chapter.name);
        item->setText(1, locale().toString(chapter.paragraphs));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(0, Qt::UserRole, chapter.id);
        item->setCheckState(0, Qt::Unchecked);
    }
    ui_->treChapters->setCurrentItem(ui_->treChapters->topLevelItem(0));
    OfferTaking();
}

std::vector<qint32> frmTakeChapters::Ticked() const
{
    std::vector<qint32> ticked;
    for (int row = 0; row < ui_->treChapters->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* item = ui_->treChapters->topLevelItem(row);
        if (item->checkState(0) == Qt::Checked)
            ticked.push_back(item->data(0, Qt::UserRole).toInt());
    }
    return ticked;
}

void frmTakeChapters::OfferTaking()
{
    ui_->cmdTake->setEnabled(!Ticked().empty());
}

void frmTakeChapters::cmdTake_Click()
{
    const ReturnPlace place =
        ui_->optInPlace->isChecked() ? ReturnPlace::InPlaceOfSame : ReturnPlace::AtTheEnd;
    ChapterReturnReport report;
    {
        const BusyPointer busy;
        report = TakeBackChapters(*State, Ticked(), place);
    }
    Tell(Report(report));
    accept();
}

void frmTakeChapters::cmdCancel_Click()
{
    reject();
}
