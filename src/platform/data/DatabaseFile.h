// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What a file appears to be, found out before the engine touches it.
enum class DatabaseFileKind {
    Missing,
    Unopenable,   // a folder, a device, or a file that may not be read
    Empty,        // 0 bytes: the engine would take it for a new database
    Plain,        // an album without a password
    Encrypted,    // may be an album with a password; only trying shows
    OldAlbum,     // an album of the former file format
    NotADatabase, // something else, or a truncated encrypted album
};

DatabaseFileKind KindOfDatabaseFile(const QString& path);

// Whether the file or its folder cannot be written; the engine keeps a journal beside a file while
// changing it.
bool IsReadOnlyDatabaseFile(const QString& path);
