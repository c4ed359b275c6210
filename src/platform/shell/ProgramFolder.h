// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The folder that the executable lies in, without a trailing separator, and with it the files that
// come with the program.
QString ProgramFolder();

// A file of that name in the program's folder, separators as the platform writes them.
QString ProgramFile(const QString& name);
