// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class Database;

// Writes the whole database into an existing empty file, whose permissions stay, encrypted unless
// the password is empty, and checks the file by opening it. Nobody can write to the database during
// this; another thread may read it. False when isStopped, which is asked all along, ended it early;
// throws DatabaseError on failure. The file is useless after both.
bool ExportDatabase(const Database& database, const QString& target, const QString& password,
                    const std::function<bool()>& isStopped);
