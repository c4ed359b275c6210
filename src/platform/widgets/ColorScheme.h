// SPDX-License-Identifier: MIT
#pragma once

enum class ColorScheme { Desktop, Light, Dark };

// Shows all windows in these colours at once. Light and dark ones are drawn by a style that takes
// every colour from the palette; the desktop's colours come with the desktop's style.
void ShowColors(ColorScheme scheme);
