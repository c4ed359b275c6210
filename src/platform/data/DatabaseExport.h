// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Database;

// Writes everything that the database holds into a new file with that password, or without one when
// it is empty, and checks the file by opening it. Nobody can write to the database meanwhile; it
// may be read in another thread. Throws DatabaseError, and leaves no file, when it could not be
// made whole.
void ExportDatabase(const Database& database, const QString& target, const QString& password);
