// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// Codes (ISO 639: "fr") of the languages that the user's desktop prefers to English, the best
// first; none for one that asks for English, or for nothing in particular.
QStringList LanguagesBeforeEnglish();
