// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmAbout;
}

// Title, version and purpose of the program, and a way to the computer's own description.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent = nullptr);
    ~frmAbout() override;

private:
    void Form_Load();
    void cmdSysInfo_Click();

    std::unique_ptr<Ui::frmAbout> ui_;
};
