// SPDX-License-Identifier: MIT
#pragma once

#include "story/FilterValues.h"

#include <QWidget>

#include <array>
#include <memory>

class ClickLabel;

namespace Ui {
class FilterPanel;
}

// A paragraph's picture filter: all twelve characteristics by group, each with its chosen values
// below its label, and beside them the list of values of the one being changed.
class FilterPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FilterPanel(QWidget* parent = nullptr);
    ~FilterPanel() override;

    // Reads the labels of the open album. Closes the list.
    void ShowLabels();

    // Closes the list.
    void SetValues(const CarValues& values);
    const CarValues& GetValues() const { return values_; }

signals:
    void ValuesChanged();
    void LabelsWanted(); // the user wants to name the characteristics

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void CreateGrid();
    void FitGridHeight();
    void lblCar_Click(int column);
    void lstCar_Click();
    void grdCar_Click(int row, int gridColumn);
    void OpenList(int column);
    void CloseList();
    void MarkChosen();
    void ShowFilter(int column);

    std::unique_ptr<Ui::FilterPanel> ui_;
    std::array<ClickLabel*, columnCount> lblCar_{};
    std::array<QString, columnCount> names_; // with their groups
    CarValues values_;
    int openColumn_ = -1; // its values are in lstCar; -1 for none
};
