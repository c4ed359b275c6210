// SPDX-License-Identifier: MIT
#pragma once

#include "story/FilterSentence.h"

#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class ClickLabel;
class FilterValueList;

namespace Ui {
class FilterPanel;
}

// A picture filter: all twelve characteristics by group, each with its chosen values below its
// label; beside them the list of values of the one being changed; below them the filter as a
// sentence, whose conditions can be clicked.
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
    // What else is looked for, for the sentence; the count is not known then.
    void SetOtherTerms(const SearchTerms& terms);
    const CarValues& GetValues() const { return values_; }
    // Both together.
    SearchTerms GetTerms() const;
    // The number of pictures that fit, none while it is not known.
    void ShowCount(std::optional<int> pictures);

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
    void lstCar_Click(const QString& token);
    void grdCar_Click(int row, int gridColumn);
    void OpenList(int column);
    void CloseList();
    void lblSentence_Click(const QString& column);
    void ShowSentence();
    void ShowFilter(int column);

    std::unique_ptr<Ui::FilterPanel> ui_;
    std::array<ClickLabel*, columnCount> lblCar_{};
    ColumnTexts titles_; // of characteristics
    ColumnTexts names_;  // with their groups
    FilterValueList* list_;
    CarValues values_;
    SearchTerms others_;
    std::optional<int> count_;
    int openColumn_ = -1; // its values are in lstCar; -1 for none
};
