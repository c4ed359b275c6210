// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Before the main window opens an album: seeds the random numbers from the clock and makes the
// program's folder the current one.
void InitModule();

// Path of the help file, in the program's folder; the one in the user's language where there is
// one.
QString HelpFile();

} // namespace GeneralModule
