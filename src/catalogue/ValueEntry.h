// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Asks for a value until the cleaned answer begins with a letter or a digit, and returns it; empty
// when the user gave up. The first box offers the proposal.
QString AskForValue(const QString& prompt, const QString& proposal);
