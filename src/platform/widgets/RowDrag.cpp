// SPDX-License-Identifier: MIT
#include "platform/widgets/RowDrag.h"

#include <QDropEvent>
#include <QListWidget>

RowDrag::RowDrag(QListWidget* list) : QObject(list), list_(list)
{
    list->setDragDropMode(QAbstractItemView::InternalMove);
    Allow(false);
    list->viewport()->installEventFilter(this);
    connect(list->model(), &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) { KeepDropsBetweenRows(first, last); });
}

void RowDrag::Allow(bool isAllowed)
{
    list_->setDragEnabled(isAllowed);
}

// The line that shows the place then never lies around a row.
void RowDrag::KeepDropsBetweenRows(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        QListWidgetItem* item = list_->item(row);
        item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
    }
}

bool RowDrag::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::Drop)
        return false;
    Drop(*static_cast<QDropEvent*>(event));
    return true;
}

void RowDrag::Drop(QDropEvent& event)
{
    // The list would remove a row that was moved.
    event.setDropAction(Qt::IgnoreAction);
    event.accept();
    const int from = list_->currentRow();
    int to = 0; // before which row it was dropped
    while (to < list_->count() &&
           list_->visualItemRect(list_->item(to)).center().y() < event.position().y())
        ++to;
    if (to > from)
        --to;
    if (from < 0 || to == from)
        return;
    QMetaObject::invokeMethod(
        this, [this, from, to] { emit Dropped(from, to); }, Qt::QueuedConnection);
}
