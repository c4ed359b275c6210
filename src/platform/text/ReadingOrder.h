// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// The texts in the alphabetical order of the user's language, without regard to case, numbers in
// them by their value ("Room 9" before "Room 10").
QStringList SortedForReading(const QStringList& texts);
