// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class Database;

// Called with how many percent are done; returns false to stop.
using CopyProgress = std::function<bool(int percent)>;

// Copies an open database's file byte for byte into an existing empty file and compares the two.
// Reads through the engine's own handle, because the system drops all of this program's locks on a
// file as soon as any other descriptor of it is closed. Hold a WriteBatch with nothing written, so
// that nobody changes the file during the copy. The copy gets the permissions of the original.
// False when progress stopped it; throws DatabaseError DiskError on failure. The copy is useless
// after both.
bool CopyDatabaseFile(const Database& database, const QString& target,
                      const CopyProgress& progress);

// The same without comparing, in about the time that the system takes to copy the file: in no time,
// and in no space, where the file system lets two files share their blocks. Whoever needs to know
// that the copy is sound checks it. Nobody else may read or write the copy.
bool CloneDatabaseFile(const Database& database, const QString& target,
                       const CopyProgress& progress);
