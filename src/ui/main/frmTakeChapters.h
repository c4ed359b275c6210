// SPDX-License-Identifier: MIT
#pragma once

#include "core/StateReturn.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmTakeChapters;
}

// Asks which chapters of an earlier state to take into the open album, and where, and does it. Set
// the state before exec(), which returns Accepted when something was taken.
class frmTakeChapters : public QDialog
{
    Q_OBJECT

public:
    explicit frmTakeChapters(QWidget* parent = nullptr);
    ~frmTakeChapters() override;

    std::shared_ptr<GeneralModule::OpenState> State;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    void OfferTaking();
    std::vector<qint32> Ticked() const;

    void cmdTake_Click();
    void cmdCancel_Click();

    std::unique_ptr<Ui::frmTakeChapters> ui_;
};
