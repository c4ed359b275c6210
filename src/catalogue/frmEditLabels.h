// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QLineEdit;

namespace Ui {
class frmEditLabels;
}

// Names the groups and the columns of characteristics. Only the Exit button keeps what was typed.
class frmEditLabels : public QDialog
{
    Q_OBJECT

public:
    explicit frmEditLabels(QWidget* parent = nullptr);
    ~frmEditLabels() override;

private:
    void Form_Load();
    void cmdExit_Click();

    QLineEdit* txtCaract(int group) const;
    QLineEdit* txtCar(int column) const;

    std::unique_ptr<Ui::frmEditLabels> ui_;
    bool isLoaded_ = false;
};
