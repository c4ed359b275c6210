// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAction;
class QMenu;
class QWidget;

// The entries of the main window's menu that take back what was done to the album; they are named
// after the steps when the menu opens.
class UndoMenu : public QObject
{
    Q_OBJECT

public:
    struct Entries
    {
        QMenu* menu;
        QAction* undo;
        QAction* redo;
        QAction* several;
    };

    // All must outlive it, and the window is its parent.
    UndoMenu(const Entries& entries, QWidget* window);

private:
    void ShowNames();
    void ChooseSeveral();

    Entries entries_;
    QWidget* window_;
};
