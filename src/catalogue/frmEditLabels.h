// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/StarterLabels.h"

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
    struct Label
    {
        QLineEdit* box;
        QString parameter; // of the album that holds the label
        QString loaded;    // as read from the album
        QString shown;     // loaded as the box returns it
    };

    void Form_Load();
    void Load(QLineEdit* box, const QString& parameter);
    std::vector<Label> EditedLabels() const;
    // Removes the labels where another window's change is to stay. False when the user wants to
    // stay.
    bool SettleConflicts(std::vector<Label>& edited);
    void OfferStarters();
    void Propose(const LabelSet& labels);
    void cmdExit_Click();
    // False, with nothing saved, when the user wants to stay.
    bool SaveLabels();
    void ShowAfterUndo();

    QLineEdit* txtCaract(int group) const;
    QLineEdit* txtCar(int column) const;

    std::unique_ptr<Ui::frmEditLabels> ui_;
    std::vector<Label> labels_;
};
