// SPDX-License-Identifier: MIT
#pragma once

#include <QCompleter>
#include <QStringList>

class QKeyEvent;
class QListView;
class QStringListModel;

// Offers known values below the box in which one is typed: those that contain the typed text,
// ignoring case, the recent ones first and the others in alphabetical order. Puts nothing into the
// box that was not chosen. One object serves several boxes in turn.
class ValueCompletion : public QCompleter
{
    Q_OBJECT

public:
    explicit ValueCompletion(QObject* parent);

    // Sets the values to offer, in any order, and those of them that were used last, the latest
    // first. Costs next to nothing for the same ones again.
    void SetValues(const QStringList& values, const QStringList& recent);

    // Enter takes the chosen value, and Esc restores the typed text; both close the list. True when
    // the key is used: not while the list is closed, nor for Enter while nothing is chosen.
    bool UseKey(const QKeyEvent& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CreateList();

    QStringList source_; // as given
    QStringList recent_;
    QStringListModel* values_;
    QListView* list_ = nullptr; // the completer's own
};
