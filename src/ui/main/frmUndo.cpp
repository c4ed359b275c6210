// SPDX-License-Identifier: MIT
#include "ui/main/frmUndo.h"
#include "ui_frmUndo.h"

#include "catalogue/UndoTurn.h"
#include "catalogue/UndoWindow.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/FormButtons.h"
#include "platform/widgets/WindowSize.h"

namespace {

constexpr QSize undoListSize(560, 460);

} // namespace

frmUndo::frmUndo(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmUndo>())
{
    using Form = frmUndo;
    ui_->setupUi(this);
    KeepWindowSize(this, undoListSize);
    ConnectButtons<Form>(this, {{ui_->cmdUndo, "previous-paragraph", &Form::cmdUndo_Click},
                                {ui_->cmdExit, "exit", &Form::cmdExit_Click}});
    // Also while the list itself changes its selection after the current row.
    connect(ui_->lstSteps, &QListWidget::currentRowChanged, this,
            Guarded(this, &Form::lstSteps_Click));
    connect(ui_->lstSteps, &QListWidget::itemSelectionChanged, this,
            Guarded(this, &Form::lstSteps_Click));
    connect(ui_->lstSteps, &QListWidget::itemDoubleClicked, this,
            Guarded(this, &Form::cmdUndo_Click));
    new UndoWindow(this, [this] { Form_Load(); });
}

frmUndo::~frmUndo() = default;

void frmUndo::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    RunGuarded([this] { Form_Load(); });
    ui_->lstSteps->setFocus();
}

void frmUndo::Form_Load()
{
    const QStringList names = GeneralModule::UndoNames();
    {
        const QSignalBlocker quiet(ui_->lstSteps);
        ui_->lstSteps->clear();
        ui_->lstSteps->addItems(names);
        ui_->lstSteps->setCurrentRow(0);
    }
    lstSteps_Click();
}

// What is taken back with the chosen step is selected with it.
void frmUndo::lstSteps_Click()
{
    const QSignalBlocker quiet(ui_->lstSteps);
    const int chosen = ui_->lstSteps->currentRow();
    for (int row = 0; row < ui_->lstSteps->count(); ++row)
        ui_->lstSteps->item(row)->setSelected(row <= chosen);
    ui_->cmdUndo->setText(chosen < 0 ? tr("Undo") : tr("Undo %n Steps", nullptr, chosen + 1));
    ui_->cmdUndo->setEnabled(chosen >= 0);
}

void frmUndo::cmdUndo_Click()
{
    const int steps = ui_->lstSteps->currentRow() + 1;
    accept();
    if (steps > 0)
        TakeBack(parentWidget() ? parentWidget()->window() : this, steps);
}

void frmUndo::cmdExit_Click()
{
    reject();
}
