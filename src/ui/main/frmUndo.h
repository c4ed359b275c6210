// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmUndo;
}

// Lists the steps of the open album, the newest first, and takes back the chosen one with all that
// came after it.
class frmUndo : public QDialog
{
    Q_OBJECT

public:
    explicit frmUndo(QWidget* parent = nullptr);
    ~frmUndo() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    void lstSteps_Click();
    void cmdUndo_Click();
    void cmdExit_Click();

    std::unique_ptr<Ui::frmUndo> ui_;
};
