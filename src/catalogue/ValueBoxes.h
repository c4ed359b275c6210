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
// to cboCategory_11, with the values that each column's table allows. Twins offer the same values,
// held once.
class ValueBoxes : public QObject
{
    Q_OBJECT

public:
    using Values = std::array<QString, columnCount>;

    explicit ValueBoxes(QWidget* window);

    // The allowed values of each labelled column.
    void SetTables(const std::map<int, QStringList>& values);
    // Adds the value to what a column offers, once.
    void Offer(int column, const QString& value);

    // A value that the table does not offer is shown all the same, with no entry selected, so that
    // nobody takes the picture for one without.
    void ShowValues(const Values& values);
    Values GetValues() const;

    QComboBox* GetBox(int column) const { return boxes_[std::size_t(column)]; }

    // True when the list of completions uses up the key.
    bool UseKey(const QKeyEvent& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void cboCategory_Change(int column);
    QStringListModel* Model(int column) const;

    std::array<QComboBox*, columnCount> boxes_{};
    ValueCompletion* completion_;
};
