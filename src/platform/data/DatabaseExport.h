// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Database;

// Writes the whole database into an existing empty file, whose permissions stay, encrypted unless
// the password is empty, and checks the file by opening it. Nobody can write to the database during
// this; another thread may read it. Throws DatabaseError on failure; the file is then useless.
void ExportDatabase(const Database& database, const QString& target, const QString& password);
