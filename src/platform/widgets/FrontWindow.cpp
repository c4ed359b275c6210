// SPDX-License-Identifier: MIT
#include "platform/widgets/FrontWindow.h"

#include <QApplication>
#include <QWidget>

void BringToFront(QWidget* window)
{
    if (window->isMinimized())
        window->showNormal();
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* front = modal ? modal : window;
    front->raise();
    front->activateWindow();
    QApplication::alert(front);
}
