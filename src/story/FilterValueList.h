// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/ValueCounts.h"
#include "platform/shell/IdleWork.h"

#include <QObject>

#include <optional>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

// Keys that put a mark where the focus is.
constexpr bool IsChoosingKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

// The values of one characteristic to choose from, with the number of pictures that have each. A
// long list can be narrowed: what is typed goes to the search field, a blank too.
class FilterValueList : public QObject
{
    Q_OBJECT

public:
    FilterValueList(QListWidget* list, QLineEdit* search, QObject* parent);

    // Lists the column's choices and marks those of the filter. Throws DatabaseError and stays as
    // it was when they cannot be read.
    void Open(int column, const QString& filter);
    void Close();
    void MarkChosen(const QString& filter);

signals:
    void Chosen(const QString& token);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BeginCounting(int column);
    void ShowCounts();
    void Narrow();
    void Choose(const QListWidgetItem* item);
    bool UseKeyOfList(const QString& text, int key);
    bool UseKeyOfSearch(int key);

    QListWidget* lstCar_;
    QLineEdit* txtFindValue_;
    IdleWork counting_;
    std::optional<ValueCounts> counts_;
};
