// SPDX-License-Identifier: MIT
#pragma once

// From now on holding Esc down closes only one window: repetitions are ignored.
void InstallHeldEscapeFilter();
