// SPDX-License-Identifier: MIT
#include "ui/main/MenuChoice.h"

#include <QActionGroup>
#include <QMenu>

void OfferChoices(QMenu& menu, const std::vector<MenuChoice>& choices, const QString& chosen,
                  const std::function<void(const QString& value)>& onChosen)
{
    auto* group = new QActionGroup(&menu);
    for (const MenuChoice& choice : choices) {
        QAction* entry = menu.addAction(choice.caption);
        entry->setObjectName(menu.objectName() + QLatin1Char('_') + choice.value);
        entry->setCheckable(true);
        entry->setChecked(choice.value == chosen);
        group->addAction(entry);
        QObject::connect(entry, &QAction::triggered, &menu,
                         [onChosen, value = choice.value] { onChosen(value); });
    }
}
