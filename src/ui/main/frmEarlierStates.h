// SPDX-License-Identifier: MIT
#pragma once

#include "core/EarlierStates.h"
#include "core/StatePasswords.h"
#include "platform/shell/IdleWork.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

namespace Ui {
class frmEarlierStates;
}

class QTreeWidgetItem;

// Lists the earlier states of an album, and takes them back whole or in part. Set the public state
// before exec().
class frmEarlierStates : public QDialog
{
    Q_OBJECT

public:
    explicit frmEarlierStates(QWidget* parent = nullptr);
    ~frmEarlierStates() override;

    QString AlbumPath; // of one that need not be open, nor be there
    // Opens a state in another window of the program; false when that fails. It starts the program
    // a second time, which tests replace.
    static std::function<bool(const QString& state)> LookInto;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    void ShowStates();
    void ShowFolder();
    void OfferActions();
    bool CountNext();
    void ShowCounts(QTreeWidgetItem& item, const GeneralModule::OpenState& state) const;
    const GeneralModule::EarlierState* Selected() const;
    bool IsOpenHere() const;

    void cmdLookInto_Click();
    void cmdTakeBack_Click();
    void cmdTakeChapters_Click();
    void cmdDelete_Click();
    void cmdKeepNow_Click();
    void cmdFolder_Click();
    void cmdExit_Click();
    void chkKeep_Click();
    void spnLimit_Change();

    std::unique_ptr<Ui::frmEarlierStates> ui_;
    std::vector<GeneralModule::EarlierState> states_;
    GeneralModule::StatePasswords passwords_;
    IdleWork counting_;
    int counted_ = 0;
};
