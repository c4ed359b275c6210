// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The folder of the executable and of the files that come with it, without a trailing separator.
QString ProgramFolder();

// Path of a file in the program's folder, with native separators.
QString ProgramFile(const QString& name);
