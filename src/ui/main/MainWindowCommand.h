// SPDX-License-Identifier: MIT
#pragma once

#include "ui/main/MainWindowState.h"

#include <functional>

class QAction;
class QPushButton;

// What the user can do in the main window by a button, by a menu entry, or by both.
struct MainWindowCommand
{
    std::function<void()> handler;
    const char* icon;                         // "" for none
    QPushButton* button;                      // null for none
    QAction* entry;                           // null for none
    bool MainWindowState::*offered = nullptr; // null: always
    bool changesAlbum = false;
};

// Gives the command's button and entry their icon, and has them call its handler.
void ConnectCommand(const MainWindowCommand& command);

// Enables the command's button and entry where it is offered. In an album that can only be read,
// those of a command that would change it say why they are not.
void OfferCommand(const MainWindowCommand& command, const MainWindowState& state);
