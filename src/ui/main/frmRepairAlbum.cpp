// SPDX-License-Identifier: MIT
#include "ui/main/frmRepairAlbum.h"
#include "ui_frmRepairAlbum.h"

#include "core/AlbumRepair.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/BusyPointer.h"

frmRepairAlbum::frmRepairAlbum(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmRepairAlbum>())
{
    ui_->setupUi(this);
    connect(ui_->cmdProceed, &QPushButton::clicked, this,
            Guarded(this, &frmRepairAlbum::cmdProceed_Click));
    connect(ui_->Command2, &QPushButton::clicked, this, &frmRepairAlbum::close);
}

frmRepairAlbum::~frmRepairAlbum() = default;

void frmRepairAlbum::cmdProceed_Click()
{
    const auto repair = [] {
        const BusyPointer busy;
        return GeneralModule::RepairAlbum();
    };
    Tell(GeneralModule::DescribeRepair(repair()));
    close();
}
