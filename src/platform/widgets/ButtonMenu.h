// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

#include <initializer_list>

class QPushButton;

// A window's buttons as a context menu, each of them as it stands: hidden ones are left out.
class ButtonMenu : public QMenu
{
public:
    explicit ButtonMenu(QWidget* window);

    // Begins with a separator unless it is the first group.
    void AddButtons(std::initializer_list<QPushButton*> buttons);
};
