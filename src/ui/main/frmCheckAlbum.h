// SPDX-License-Identifier: MIT
#pragma once

#include "core/AlbumCheck.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmCheckAlbum;
}

// Checks the open album, tells what it found, and leads to what mends it.
class frmCheckAlbum : public QDialog
{
    Q_OBJECT

public:
    explicit frmCheckAlbum(QWidget* parent = nullptr);
    ~frmCheckAlbum() override;

    bool WantsEarlierStates = false; // was closed to see them

private:
    GeneralModule::CheckReport Check();
    bool ShowProgress(GeneralModule::CheckStep step, int percent);

    void cmdCheck_Click();
    void cmdRepair_Click();
    void cmdStates_Click();
    void cmdExit_Click();

    std::unique_ptr<Ui::frmCheckAlbum> ui_;
};
