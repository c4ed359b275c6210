// SPDX-License-Identifier: MIT
#include "gallery/EvenGrid.h"

#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int lineGap = 4; // logical pixels

} // namespace

EvenGrid::EvenGrid(QWidget* parent) : QListView(parent)
{
    setViewMode(IconMode);
    setMovement(Static);
    setDragEnabled(false);
    setResizeMode(Adjust);
    setUniformItemSizes(true); // else each is measured before the first is shown
    setVerticalScrollMode(ScrollPerPixel);
    // One that comes and goes would change the number of columns.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void EvenGrid::SetItemSize(QSize size)
{
    itemSize_ = size;
    Arrange();
}

void EvenGrid::Arrange()
{
    const int width = viewport()->width();
    columns_ = std::max(1, width / itemSize_.width());
    const QSize grid(std::max(itemSize_.width(), width / columns_), itemSize_.height() + lineGap);
    if (grid != gridSize())
        setGridSize(grid);
}

void EvenGrid::resizeEvent(QResizeEvent* event)
{
    Arrange();
    QListView::resizeEvent(event);
}

void EvenGrid::updateGeometries()
{
    QListView::updateGeometries();
    constexpr int stepsPerLine = 3; // a notch of the wheel is three steps
    verticalScrollBar()->setSingleStep(std::max(1, gridSize().height() / stepsPerLine));
}

EvenGrid::Rows EvenGrid::SeenRows() const
{
    const int height = std::max(1, gridSize().height());
    const int firstLine = verticalOffset() / height;
    const int lastLine = (verticalOffset() + std::max(1, viewport()->height()) - 1) / height;
    const int count = CountRows();
    return {std::min(firstLine * columns_, count), std::min((lastLine + 1) * columns_, count)};
}

int EvenGrid::RowsPerPage() const
{
    return std::max(1, viewport()->height() / std::max(1, gridSize().height())) * columns_;
}

// The toolkit's own way stops at the ends of each line.
QModelIndex EvenGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int count = CountRows();
    if (count == 0)
        return {};
    const int row = currentIndex().isValid() ? RowFor(action, currentIndex().row()) : 0;
    return model()->index(std::clamp(row, 0, count - 1), 0);
}

// May lie outside.
int EvenGrid::RowFor(CursorAction action, int row) const
{
    const int last = CountRows() - 1;
    const int ahead = isRightToLeft() ? -1 : 1;
    switch (action) {
    case MoveUp:
        return row < columns_ ? row : row - columns_;
    case MoveDown:
        // The last line may have nothing below, but it is a line.
        return row / columns_ == last / columns_ ? row : row + columns_;
    case MoveLeft:
        return row - ahead;
    case MoveRight:
        return row + ahead;
    case MovePrevious:
        return row - 1;
    case MoveNext:
        return row + 1;
    case MovePageUp:
        return row - RowsPerPage();
    case MovePageDown:
        return row + RowsPerPage();
    case MoveHome:
        return 0;
    case MoveEnd:
        return last;
    }
    return row;
}
