// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/ValueBoxes.h"

#include <QWidget>

#include <memory>

namespace Ui {
class DescriptionFields;
}

// The twelve boxes that a description is made of, under the album's labels for them.
class DescriptionFields : public QWidget
{
    Q_OBJECT

public:
    explicit DescriptionFields(QWidget* parent = nullptr);
    ~DescriptionFields() override;

    // Show what the open album holds. Everything is read before a control is touched, so that a
    // failure leaves them unchanged. Throw DatabaseError.
    void ShowLabels();
    void ShowLabelsAndValues();

    ValueBoxes& GetBoxes() { return *boxes_; }
    // The title of each column with its group's, as a sentence speaks of it.
    const std::array<QString, columnCount>& GetNames() const { return names_; }
    // Leads Tab from a control through the boxes to another one.
    void TakeFocusBetween(QWidget* before, QWidget* after);

private:
    QLabel* LabelOf(const QString& name) const;

    std::unique_ptr<Ui::DescriptionFields> ui_;
    ValueBoxes* boxes_;
    std::array<QString, columnCount> names_;
};
