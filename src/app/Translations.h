// SPDX-License-Identifier: MIT
#pragma once

class QCoreApplication;

// Translates the program's texts, and those of the toolkit's own boxes, into the language that the
// user has chosen, or the desktop's; they stay English where there is no translation. Numbers are
// written accordingly. Call before the first window opens.
void InstallTranslations(QCoreApplication& application);
