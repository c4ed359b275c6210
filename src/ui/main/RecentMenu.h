// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QMenu;

// Makes the menu's entries anew: one for each album opened lately, the latest first. Choosing one
// hands its path to open. The menu is disabled as long as there is none.
void FillRecentMenu(QMenu& menu, const std::function<void(const QString& path)>& open);
