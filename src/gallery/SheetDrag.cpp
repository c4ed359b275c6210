// SPDX-License-Identifier: MIT
#include "gallery/SheetDrag.h"

#include <QDrag>
#include <QDropEvent>
#include <QScrollBar>

namespace {

// Logical pixels.
constexpr int lineWidth = 3;
constexpr int scrollMargin = 24; // where a drag scrolls, at the upper and the lower edge
constexpr int searchStep = 8;    // less than a picture is wide
constexpr QPoint hotSpot(12, 16);

} // namespace

SheetDrag::SheetDrag(QListView* sheet)
    : QObject(sheet), sheet_(sheet), line_(new QWidget(sheet->viewport()))
{
    line_->setAttribute(Qt::WA_TransparentForMouseEvents);
    line_->setAutoFillBackground(true);
    line_->setBackgroundRole(QPalette::Highlight);
    line_->hide();
    sheet->viewport()->installEventFilter(this);
}

// The picture hangs below the pointer, half as large, so that the line stays visible.
void SheetDrag::Begin()
{
    const QPixmap picture = sheet_->viewport()->grab(sheet_->visualRect(sheet_->currentIndex()));
    auto* drag = new QDrag(sheet_); // which the toolkit deletes
    drag->setMimeData(sheet_->model()->mimeData({sheet_->currentIndex()}));
    drag->setPixmap(
        picture.scaled(picture.size() / 2, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    drag->setHotSpot(-hotSpot);
    drag->exec(Qt::CopyAction);
}

// Beside the picture there, else after the one that is nearest to the left or, to the right of
// where a language is read from, to the right; below all pictures after the last one.
SheetDrag::Gap SheetDrag::GapAt(QPoint place) const
{
    const bool isMirrored = sheet_->isRightToLeft();
    const int back = isMirrored ? searchStep : -searchStep;
    QModelIndex index = sheet_->indexAt(place);
    bool isAfter = false;
    for (int x = place.x(); !index.isValid() && x >= 0 && x < sheet_->viewport()->width();
         x += back) {
        index = sheet_->indexAt({x, place.y()});
        isAfter = index.isValid();
    }
    const int count = sheet_->model()->rowCount();
    if (!index.isValid()) {
        index = sheet_->model()->index(count - 1, 0);
        isAfter = true;
    }
    const QRect picture = sheet_->visualRect(index);
    isAfter = isAfter || (place.x() > picture.center().x()) != isMirrored;
    const int x = isAfter != isMirrored ? picture.right() + 1 : picture.left();
    return {index.row() + (isAfter ? 1 : 0),
            {x - lineWidth / 2, picture.top(), lineWidth, picture.height()}};
}

void SheetDrag::Follow(QDropEvent& event)
{
    if (event.source() != sheet_)
        return event.ignore();
    event.acceptProposedAction();
    const QPoint place = event.position().toPoint();
    ScrollAt(place.y());
    line_->setGeometry(GapAt(place).line);
    line_->show();
    line_->raise();
}

void SheetDrag::ScrollAt(int y)
{
    QScrollBar* bar = sheet_->verticalScrollBar();
    if (y < scrollMargin)
        bar->setValue(bar->value() - bar->singleStep());
    else if (y > sheet_->viewport()->height() - scrollMargin)
        bar->setValue(bar->value() + bar->singleStep());
}

void SheetDrag::Drop(QDropEvent& event)
{
    line_->hide();
    if (event.source() != sheet_)
        return event.ignore();
    event.setDropAction(Qt::IgnoreAction); // else the sheet would remove what was moved
    event.accept();
    const int before = GapAt(event.position().toPoint()).before;
    QMetaObject::invokeMethod(
        this, [this, before] { emit Dropped(before); }, Qt::QueuedConnection);
}

bool SheetDrag::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        Follow(*static_cast<QDropEvent*>(event));
        return true;
    case QEvent::DragLeave:
        line_->hide();
        return true;
    case QEvent::Drop:
        Drop(*static_cast<QDropEvent*>(event));
        return true;
    default:
        return false;
    }
}
