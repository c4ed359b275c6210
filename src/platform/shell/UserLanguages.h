// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// ISO 639 codes ("fr") of the languages that the user's desktop prefers to English, the best first;
// none when the desktop prefers English or states no preference.
QStringList LanguagesBeforeEnglish();
