// SPDX-License-Identifier: MIT
#pragma once

class QCoreApplication;

// Translates the program's texts, and those of the toolkit's own boxes, into the user's language;
// they stay English where there is no translation. Call before the first window opens.
void InstallTranslations(QCoreApplication& application);
