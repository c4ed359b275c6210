// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/CharacteristicModel.h"
#include "catalogue/ValueCounts.h"
#include "platform/shell/IdleWork.h"

#include <QDialog>

#include <array>
#include <memory>

class QListWidgetItem;
class QRadioButton;

namespace Ui {
class frmEditTables;
}

// Edits the tables of allowed values: adds and deletes values, and replaces one in the whole album.
class frmEditTables : public QDialog
{
    Q_OBJECT

public:
    // Shows the album's picture with that File beside the tables.
    frmEditTables(const QString& picture, QWidget* parent);
    ~frmEditTables() override;

private:
    void Form_Load(const QString& picture);
    void optCaracteristic_Click();
    void optColumn_Click();
    void cmdAddNew_Click();
    void cmdDelete_Click();
    void cmdReplace_Click();
    void cmdEditLabels_Click();
    void chkSorted_Click();
    // Adds a value to the list, at its place, and selects it.
    void Insert(const QString& value);

    void ConnectControls();
    std::array<QRadioButton*, columnsPerGroup> Groups() const;
    std::array<QRadioButton*, columnsPerGroup> Columns() const;
    void ShowCaptions();
    void ShowTable(bool isGroupNew);
    void BeginCounting();
    void ShowCounts();
    // False when the user stopped it.
    bool RunReplacement(const QString& old, const QString& replacement);
    void TellChanged(const QString& text);
    QString SelectedValue() const;
    QListWidgetItem* ListedItem(const QString& value) const;

    std::unique_ptr<Ui::frmEditTables> ui_;
    IdleWork counting_;
    std::optional<ValueCounts> counts_; // of the table on show; none before it was asked for
    bool areCounted_ = false;
    int column_ = -1; // its table is shown: 0 to 5 or 9 to 11; -1 when none is chosen
};
