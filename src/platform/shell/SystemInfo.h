// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The settings of the whole machine, as far as the program asks for them.
enum class RegistryRoot { LocalMachine };

// Reads one value of the registry, or, where the system has none, of the machine-wide settings file
// of the program, in which the key's parts are written with "/". A text ends at its first zero
// character; a binary value reads as the hexadecimal digits of its bytes. False when there is no
// such value; value then stays.
bool GetKeyValue(RegistryRoot root, const QString& keyName, const QString& valueName,
                 QString& value);

// Starts the program that tells about this computer, as a process of its own: the one that the
// registry names, or else the desktop's. False when there is none.
bool StartSysInfo();
