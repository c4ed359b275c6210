// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <vector>

class QMenu;

// One of the entries of a menu of which one is always chosen.
struct MenuChoice
{
    QString value;
    QString caption;
};

// Fills the menu with the choices and marks the one of that value. Whatever the user chooses then
// goes to onChosen. An entry is named after the menu and its value: mnuTextSize_Large.
void OfferChoices(QMenu& menu, const std::vector<MenuChoice>& choices, const QString& chosen,
                  const std::function<void(const QString& value)>& onChosen);
