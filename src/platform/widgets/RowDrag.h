// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QDropEvent;
class QListWidget;

// Lets the user drag the rows of a list to other places in it. The list itself moves nothing: it
// tells what is to be moved, and shows the result when it is filled again. The list owns it.
class RowDrag : public QObject
{
    Q_OBJECT

public:
    explicit RowDrag(QListWidget* list);

    // Until allowed, no row can be dragged.
    void Allow(bool isAllowed);

signals:
    // to: the index that the row shall have then, never its present one. Comes when the drag has
    // ended, so that message boxes may be opened.
    void Dropped(int from, int to);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Drop(QDropEvent& event);
    void KeepDropsBetweenRows(int first, int last);

    QListWidget* list_;
};
