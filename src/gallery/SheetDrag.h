// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

class QDropEvent;

// Shows where pictures that are dragged on a sheet would be dropped, and tells where they were. The
// sheet itself moves nothing; it owns this.
class SheetDrag : public QObject
{
    Q_OBJECT

public:
    explicit SheetDrag(QListView* sheet);

    // Drags the selected pictures. Returns when they were dropped.
    void Begin();

signals:
    // The row before which they shall be; the number of rows: at the end. Comes when the drag has
    // ended, so that message boxes may be opened.
    void Dropped(int before);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A gap between two pictures of a line.
    struct Gap
    {
        int before = 0; // row
        QRect line;     // of the viewport
    };
    Gap GapAt(QPoint place) const;
    void Follow(QDropEvent& event);
    void ScrollAt(int y);
    void Drop(QDropEvent& event);

    QListView* sheet_;
    QWidget* line_;
};
