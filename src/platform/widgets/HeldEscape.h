// SPDX-License-Identifier: MIT
#pragma once

// From now on an Esc that is held down closes one window only: its repetitions go nowhere.
void InstallHeldEscapeFilter();
