// SPDX-License-Identifier: MIT
#include "ui/main/frmRepairAlbum.h"
#include "ui_frmRepairAlbum.h"

#include "catalogue/UndoWindow.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"

#include <QScopeGuard>

frmRepairAlbum::frmRepairAlbum(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmRepairAlbum>())
{
    ui_->setupUi(this);
    connect(ui_->cmdProceed, &QPushButton::clicked, this,
            Guarded(this, &frmRepairAlbum::cmdProceed_Click));
    new UndoWindow(this);
    connect(ui_->Command2, &QPushButton::clicked, this, &frmRepairAlbum::close);
}

frmRepairAlbum::~frmRepairAlbum() = default;

void frmRepairAlbum::cmdProceed_Click()
{
    const GeneralModule::RepairReport report = Repair();
    if (report.isStopped)
        return;
    Tell(GeneralModule::DescribeRepair(report));
    close();
}

GeneralModule::RepairReport frmRepairAlbum::Repair()
{
    const BusyPointer busy;
    bool isShown = false;
    const auto end = qScopeGuard([&] {
        if (isShown)
            ui_->progress->End();
    });
    return GeneralModule::RepairAlbum([&](int percent) {
        if (!isShown)
            ui_->progress->Begin(100, true);
        isShown = true;
        return ui_->progress->Advance(percent);
    });
}
