// SPDX-License-Identifier: MIT
#pragma once

#include "core/AlbumRepair.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmRepairAlbum;
}

// Asks whether to repair the links of the open album, does it, and tells what was mended.
class frmRepairAlbum : public QDialog
{
    Q_OBJECT

public:
    explicit frmRepairAlbum(QWidget* parent = nullptr);
    ~frmRepairAlbum() override;

private:
    void cmdProceed_Click();
    GeneralModule::RepairReport Repair();

    std::unique_ptr<Ui::frmRepairAlbum> ui_;
};
