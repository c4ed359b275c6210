// SPDX-License-Identifier: MIT
#pragma once

class QCoreApplication;

// Puts the program's texts, and those of the toolkit's own boxes, in the user's language where
// there is a translation; they stay English where there is none. Before the first window.
void InstallTranslations(QCoreApplication& application);
