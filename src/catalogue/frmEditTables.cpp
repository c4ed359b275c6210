// SPDX-License-Identifier: MIT
#include "catalogue/frmEditTables.h"
#include "ui_frmEditTables.h"

#include "catalogue/CharacteristicModel.h"
#include "catalogue/UndoWindow.h"
#include "catalogue/ValueEntry.h"
#include "catalogue/ValueReplacement.h"
#include "catalogue/frmEditLabels.h"
#include "core/LocalCopy.h"
#include "core/Parameters.h"
#include "core/Settings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/text/ReadingOrder.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/CountDelegate.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/ThemedIcon.h"
#include "platform/widgets/WindowSize.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>

using namespace GeneralModule;

namespace {

constexpr QSize proposedSize(820, 600);

// First column of each optCaracteristic; the twin groups are one choice.
constexpr std::array firstColumns{0, 3, 9};

const QString tablesSection = QStringLiteral("User");
const QString sortedKey = QStringLiteral("SortedTables");

constexpr int widestCaption = 200; // logical pixels

// In a caption "&" would mark an access key.
void SetCaption(QRadioButton& option, const QString& label, const QString& whenEmpty)
{
    const QString shown =
        option.fontMetrics().elidedText(label, Qt::ElideRight, widestCaption, Qt::TextSingleLine);
    option.setText(label.isEmpty() ? whenEmpty
                                   : QString(shown).replace(u'&', QStringLiteral("&&")));
}

// The number of the button that is chosen, -1 for none.
int ChosenOf(const std::array<QRadioButton*, columnsPerGroup>& options)
{
    const auto chosen =
        std::find_if(options.begin(), options.end(),
                     [](const QRadioButton* option) { return option->isChecked(); });
    return chosen == options.end() ? -1 : int(chosen - options.begin());
}

QString TwinGroupsLabel()
{
    const QString first = CaractLabel(1);
    const QString second = CaractLabel(2);
    return first.isEmpty() && second.isEmpty() ? QString() : first + QLatin1Char('/') + second;
}

} // namespace

frmEditTables::frmEditTables(const QString& picture, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmEditTables>())
{
    ui_->setupUi(this);
    KeepWindowSize(this, proposedSize);
    ui_->lstCar->setItemDelegate(new CountDelegate(ui_->lstCar));
    RunGuarded([&] { Form_Load(picture); });
    ConnectControls();
}

frmEditTables::~frmEditTables() = default;

void frmEditTables::ConnectControls()
{
    using Form = frmEditTables;
    ConnectButtons<Form>(this,
                         {
                             {ui_->cmdAddNew, "chapter-create", &Form::cmdAddNew_Click},
                             {ui_->cmdReplace, "rename", &Form::cmdReplace_Click},
                             {ui_->cmdDelete, "delete", &Form::cmdDelete_Click},
                             {ui_->cmdEditLabels, "edit-paragraph", &Form::cmdEditLabels_Click},
                         });
    new UndoWindow(this, [this] { ShowTable(true); });
    ui_->cmdClose->setIcon(ThemedIcon(QStringLiteral("exit")));
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QDialog::close);
    connect(ui_->chkSorted, &QCheckBox::toggled, this, Guarded(this, &Form::chkSorted_Click));
    for (QRadioButton* option :
         {ui_->optCaracteristic_1, ui_->optCaracteristic_2, ui_->optCaracteristic_3})
        connect(option, &QRadioButton::clicked, this,
                Guarded(this, &frmEditTables::optCaracteristic_Click));
    for (QRadioButton* option : {ui_->optColumn_1, ui_->optColumn_2, ui_->optColumn_3})
        connect(option, &QRadioButton::clicked, this,
                Guarded(this, &frmEditTables::optColumn_Click));
}

void frmEditTables::Form_Load(const QString& picture)
{
    ui_->chkSorted->setChecked(GetUserSetting(tablesSection, sortedKey) == QLatin1String("1"));
    ui_->stage->ShowPicture(picture, picture.isEmpty() ? picture : ResolvePictureFile(picture));
    optCaracteristic_Click();
}

void frmEditTables::optCaracteristic_Click()
{
    ShowTable(true);
}

void frmEditTables::optColumn_Click()
{
    ShowTable(false);
}

std::array<QRadioButton*, columnsPerGroup> frmEditTables::Groups() const
{
    return {ui_->optCaracteristic_1, ui_->optCaracteristic_2, ui_->optCaracteristic_3};
}

std::array<QRadioButton*, columnsPerGroup> frmEditTables::Columns() const
{
    return {ui_->optColumn_1, ui_->optColumn_2, ui_->optColumn_3};
}

void frmEditTables::ShowCaptions()
{
    const int chosen = ChosenOf(Groups());
    const std::array groups{CaractLabel(0), TwinGroupsLabel(), CaractLabel(3)};
    std::array<QString, columnsPerGroup> columns;
    for (int i = 0; chosen >= 0 && i < columnsPerGroup; ++i)
        columns[std::size_t(i)] = ColumnLabel(firstColumns[std::size_t(chosen)] + i);
    for (int i = 0; i < columnsPerGroup; ++i) {
        const auto at = std::size_t(i);
        SetCaption(*Groups()[at], groups[at], tr("Caracteristic%1").arg(i + 1));
        SetCaption(*Columns()[at], columns[at], tr("Column %1").arg(i + 1));
    }
}

// If a table cannot be read, the current one and its options stay.
void frmEditTables::ShowTable(bool isGroupNew)
{
    auto stay = qScopeGuard([this] {
        for (int i = 0; column_ >= 0 && i < columnsPerGroup * columnsPerGroup; ++i) {
            const auto group = std::size_t(i / columnsPerGroup);
            const auto column = std::size_t(i % columnsPerGroup);
            if (firstColumns[group] + int(column) == column_) {
                Groups()[group]->setChecked(true);
                Columns()[column]->setChecked(true);
            }
        }
    });
    const int group = ChosenOf(Groups());
    const int column = ChosenOf(Columns());
    const bool isChosen = group >= 0 && column >= 0;
    const int chosen = isChosen ? firstColumns[std::size_t(group)] + column : -1;
    const QStringList values = isChosen ? ValuesOf(chosen) : QStringList();
    if (isGroupNew)
        ShowCaptions();
    stay.dismiss();
    column_ = chosen;
    ui_->lblProgress->hide();
    if (!isChosen)
        return;
    ui_->lstCar->clear();
    ui_->lstCar->addItems(ui_->chkSorted->isChecked() ? SortedForReading(values) : values);
    BeginCounting();
}

void frmEditTables::chkSorted_Click()
{
    const QString selected = SelectedValue();
    SaveUserSetting(tablesSection, sortedKey,
                    ui_->chkSorted->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
    ShowTable(false);
    ui_->lstCar->setCurrentItem(ListedItem(selected));
}

void frmEditTables::Insert(const QString& value)
{
    QStringList values;
    for (int row = 0; row < ui_->lstCar->count(); ++row)
        values += ui_->lstCar->item(row)->text();
    const bool isSorted = ui_->chkSorted->isChecked();
    const qsizetype row =
        isSorted ? SortedForReading(values + QStringList(value)).lastIndexOf(value) : values.size();
    ui_->lstCar->insertItem(int(row), value);
    ui_->lstCar->setCurrentRow(int(row));
}

// How many pictures have each value, in one scan for all of them.
void frmEditTables::BeginCounting()
{
    areCounted_ = false;
    counts_.reset();
    counting_.Begin([this](std::chrono::milliseconds time) {
        if (!counts_)
            counts_.emplace(column_);
        if (counts_->Work(time))
            return true;
        areCounted_ = true;
        ShowCounts();
        return false;
    });
}

void frmEditTables::ShowCounts()
{
    for (int row = 0; row < ui_->lstCar->count(); ++row) {
        QListWidgetItem* item = ui_->lstCar->item(row);
        item->setData(CountDelegate::countRole, locale().toString(counts_->CountOf(item->text())));
    }
}

QString frmEditTables::SelectedValue() const
{
    const QList<QListWidgetItem*> selected = ui_->lstCar->selectedItems();
    return selected.isEmpty() ? QString() : selected.constFirst()->text();
}

// Ignoring case; null when the list does not hold the value.
QListWidgetItem* frmEditTables::ListedItem(const QString& value) const
{
    return ui_->lstCar->findItems(value, Qt::MatchFixedString).value(0);
}

void frmEditTables::cmdAddNew_Click()
{
    if (column_ < 0)
        return;
    const QString value = AskForValue(tr("Please Enter Parameter's Name"), {});
    if (value.isEmpty())
        return;
    const QString added = AddValueToTable(column_, value);
    if (added.isEmpty())
        return;
    Insert(added);
    BeginCounting(); // a picture may have it, from another program or an earlier table
}

void frmEditTables::cmdDelete_Click()
{
    const QString value = SelectedValue();
    if (value.isEmpty())
        return;
    if (IsSpecialMarker(value))
        return Tell(tr("Sorry, you can't delete the special markers"), Dialogs::Icon::Warning);
    RemoveValueFromTable(column_, value);
    delete ui_->lstCar->takeItem(ui_->lstCar->currentRow());
    // Else the list would choose the neighbour, which a double click would delete too.
    ui_->lstCar->setCurrentRow(-1);
    const int holders = areCounted_ ? counts_->CountOf(value) : 0;
    if (holders > 0)
        TellChanged(tr("%n pictures still have '%1'", nullptr, holders).arg(value));
}

void frmEditTables::cmdReplace_Click()
{
    const QString old = SelectedValue();
    if (old.isEmpty())
        return;
    if (IsSpecialMarker(old))
        return Tell(tr("Sorry, you can't modify the special markers"), Dialogs::Icon::Warning);
    const QString replacement = AskForValue(tr("Replace all occurences of %1 by :").arg(old), old);
    if (replacement.isEmpty() || replacement == old)
        return;
    const QListWidgetItem* held = ListedItem(replacement);
    const bool isMerged = held && held->text() != old;
    if (!RunReplacement(old, replacement))
        return;
    if (isMerged)
        TellChanged(ui_->lblProgress->text() + QStringLiteral(". ") +
                    tr("'%1' and '%2' are one value now.").arg(old, held->text()));
    delete ui_->lstCar->takeItem(ui_->lstCar->currentRow());
    if (!ListedItem(replacement))
        Insert(replacement);
    ui_->lstCar->setCurrentItem(ListedItem(replacement));
    BeginCounting();
}

bool frmEditTables::RunReplacement(const QString& old, const QString& replacement)
{
    const BusyPointer busy;
    TellChanged({});
    ui_->progress->Begin(0, true);
    auto end = qScopeGuard([this] {
        ui_->progress->End();
        ui_->lblProgress->hide();
    });
    const auto done = ReplaceValue(column_, old, replacement, [this](int changed) {
        const bool goOn = ui_->progress->Advance(changed);
        if (ui_->progress->HasShown())
            TellChanged(tr("%1 pictures and paragraphs changed").arg(changed));
        return goOn;
    });
    end.dismiss();
    ui_->progress->End();
    TellChanged(done ? tr("Pictures changed: %1, paragraphs changed: %2")
                           .arg(done->pictures)
                           .arg(done->paragraphs)
                     : tr("Stopped: nothing was changed"));
    return done.has_value();
}

void frmEditTables::TellChanged(const QString& text)
{
    ui_->lblProgress->setText(text);
    ui_->lblProgress->show();
}

void frmEditTables::cmdEditLabels_Click()
{
    frmEditLabels(this).exec();
    ShowCaptions();
}
