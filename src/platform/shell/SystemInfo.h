// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The settings of the whole machine that the program reads.
enum class RegistryRoot { LocalMachine };

// Reads a value from the registry, or, where the system has none, from the program's machine-wide
// settings file, where "/" separates the parts of a key. A text ends at its first zero character; a
// binary value gives the hexadecimal digits of its bytes. False when there is no such value; value
// then stays unchanged.
bool GetKeyValue(RegistryRoot root, const QString& keyName, const QString& valueName,
                 QString& value);

// Starts the system information program in a separate process: the one named in the registry, else
// the desktop's. False when there is none.
bool StartSysInfo();
