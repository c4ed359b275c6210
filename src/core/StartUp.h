// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Seeds the random numbers from the clock and makes the program's folder the current one. Called by
// the main window before it opens an album.
void InitModule();

// Path of the help file in the program's folder, in the user's language if there is one.
QString HelpFile();

} // namespace GeneralModule
