// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Database;

// Copies the file of an open database by its bytes to a new file, which must not exist yet, and
// compares the two. Read through the engine's own handle, because the system drops every lock that
// this program holds on a file as soon as any other descriptor of it is closed. Hold a WriteBatch
// with nothing written, so that nobody changes the file meanwhile. The copy has the permissions of
// the original. Throws DatabaseError DiskError, and leaves no file, when it could not be made
// whole.
void CopyDatabaseFile(const Database& database, const QString& target);
