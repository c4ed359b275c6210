// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

// A list of items of one size in lines that share the width evenly. The arrow keys go from line to
// line, as in a text.
class EvenGrid : public QListView
{
    Q_OBJECT

public:
    explicit EvenGrid(QWidget* parent = nullptr);

protected:
    // The least that an item takes, logical pixels.
    void SetItemSize(QSize size);

    // From the first line that is seen to the last, as far as there are rows.
    struct Rows
    {
        int first = 0;
        int end = 0;
    };
    Rows SeenRows() const;

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;

private:
    void Arrange();
    int CountRows() const { return model() ? model()->rowCount() : 0; }
    int RowsPerPage() const;
    int RowFor(CursorAction action, int row) const;

    QSize itemSize_{1, 1};
    int columns_ = 1;
};
