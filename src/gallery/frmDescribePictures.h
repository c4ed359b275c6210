// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/PictureGroup.h"
#include "platform/shell/IdleWork.h"

#include <QDialog>

#include <memory>

class GroupChoice;
class QLineEdit;

namespace Ui {
class frmDescribePictures;
}

// Describes many pictures at once: those chosen on the sheet get the fields that were touched, and
// keep all others. Set the pictures before exec().
class frmDescribePictures : public QDialog
{
    Q_OBJECT

public:
    explicit frmDescribePictures(QWidget* parent = nullptr);
    ~frmDescribePictures() override;

    std::vector<qint32> Pictures;

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void ConnectControls();
    void ConnectFields();
    void Form_Load();
    void ShowTables();
    void ShowAlbumAgain();
    bool Form_KeyDown(const QKeyEvent& key);
    void RefreshState();

    void ChoiceChanged();
    bool ReadGroup(std::chrono::milliseconds time);
    void ShowGroup(const GroupDescription& group);
    void ShowField(QLineEdit& field, const GroupField& texts, bool isTouched) const;

    // The field is written when the change is applied.
    void Touch(int column, bool isTouched = true);
    void TouchLegend(bool isTouched = true);
    void TouchNothing();
    GroupChange GetChange() const;
    void Apply();
    void ChooseNext();

    void cmdApply_Click();
    void cmdAsBefore_Click();
    void cmdEditTables_Click();
    void cmdExit_Click();

    std::unique_ptr<Ui::frmDescribePictures> ui_;
    GroupChoice* groups_;
    IdleWork reading_;
    std::vector<qint32> chosen_;                   // those selected, else the current one
    std::optional<GroupReading> group_;            // being read
    std::array<QStringList, columnCount> allowed_; // values of each column's table
    std::array<bool, columnCount> isTouched_{};
    bool isLegendTouched_ = false;
};
