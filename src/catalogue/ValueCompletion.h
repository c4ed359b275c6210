// SPDX-License-Identifier: MIT
#pragma once

#include <QCompleter>
#include <QStringList>

class QKeyEvent;
class QListView;
class QStringListModel;

// Offers known values below the box in which one is typed: those that hold what was typed, in any
// place and any letter case, in alphabetical order. It puts nothing into the box that was not
// chosen there. One serves several boxes in turn.
class ValueCompletion : public QCompleter
{
    Q_OBJECT

public:
    explicit ValueCompletion(QObject* parent);

    // What is offered from now on, in any order. Costs next to nothing for the same values again.
    void SetValues(const QStringList& values);

    // Enter takes the chosen value, and Esc brings back what was typed; both close the list. True
    // when the key is used up: not where the list is closed, nor for Enter while none is chosen.
    bool UseKey(const QKeyEvent& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CreateList();

    QStringList source_; // as they were given
    QStringListModel* values_;
    QListView* list_ = nullptr; // the completer's own
};
