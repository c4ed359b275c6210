// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Database;

// Copies the file of an open database by its bytes into an empty file that is there, and compares
// the two. Read through the engine's own handle, because the system drops every lock that
// this program holds on a file as soon as any other descriptor of it is closed. Hold a WriteBatch
// with nothing written, so that nobody changes the file meanwhile. The copy gets the
// permissions of the original. Throws DatabaseError DiskError when it could not be made whole; what
// is in the file then is worth nothing.
void CopyDatabaseFile(const Database& database, const QString& target);
