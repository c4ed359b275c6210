// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// From now on this process can change files below that folder only, whatever it tries: what plays
// with a program that deletes pictures must not meet its owner's. False, and nothing is changed,
// where the system cannot do so.
bool ConfineWritingTo(const QString& folder);
