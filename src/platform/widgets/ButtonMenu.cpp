// SPDX-License-Identifier: MIT
#include "platform/widgets/ButtonMenu.h"

#include <QPushButton>

ButtonMenu::ButtonMenu(QWidget* window) : QMenu(window)
{
    setObjectName(QStringLiteral("mnuButtons"));
}

void ButtonMenu::AddButtons(std::initializer_list<QPushButton*> buttons)
{
    if (!isEmpty())
        addSeparator();
    for (QPushButton* button : buttons) {
        if (button->isHidden())
            continue;
        QAction* action = addAction(button->icon(), button->text());
        action->setEnabled(button->isEnabled());
        connect(action, &QAction::triggered, button, &QPushButton::click);
    }
}
