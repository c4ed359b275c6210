// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/WindowKeys.h"

// The keys of the main window.
const WindowKeyTable& MainWindowKeys();

// What the keys do in every window that has some of its own.
std::vector<KeySection> AllKeys();
