// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/CharacteristicModel.h"

#include <QObject>
#include <QStringList>

#include <array>
#include <map>

class QComboBox;
class QKeyEvent;
class QStringListModel;
class ValueCompletion;

// The twelve boxes of a window in which a picture's values are chosen or typed, named cboCategory_0
// to cboCategory_11. They offer the allowed values of their columns. Twins share one list of
// values.
class ValueBoxes : public QObject
{
    Q_OBJECT

public:
    using Values = std::array<QString, columnCount>;

    explicit ValueBoxes(QWidget* window);

    // The allowed values of each labelled column.
    void SetTables(const std::map<int, QStringList>& values);
    // From now on each box has a list of its own, see SetChoices.
    void SeparateLists();
    // What the box of that column offers, in this order, each value once.
    void SetChoices(int column, QStringList values);
    // Adds the value to what a column offers, unless it is there.
    void Offer(int column, const QString& value);

    // A value that the table does not offer is shown too, with no entry selected, so that the
    // picture does not seem to have none.
    void ShowValues(const Values& values);
    Values GetValues() const;

    QComboBox* GetBox(int column) const { return boxes_[std::size_t(column)]; }

    // True when the list of completions uses the key.
    bool UseKey(const QKeyEvent& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void cboCategory_Change(int column);
    QStringListModel* Model(int column) const;

    std::array<QComboBox*, columnCount> boxes_{};
    ValueCompletion* completion_;
};
