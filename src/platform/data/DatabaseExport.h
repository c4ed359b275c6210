// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Database;

// Writes everything that the database holds into an empty file that is there, whose permissions
// stay, with that password or without one when it is empty, and checks the file by opening it.
// Nobody can write to the database meanwhile; it may be read in another thread. Throws
// DatabaseError when the file could not be made whole; what is in it then is worth nothing.
void ExportDatabase(const Database& database, const QString& target, const QString& password);
