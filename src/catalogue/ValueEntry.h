// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Asks for a value until the answer, cleaned, begins with a letter or a figure, and returns it;
// empty when the user gave up. The proposal is offered in the first box.
QString AskForValue(const QString& prompt, const QString& proposal);
