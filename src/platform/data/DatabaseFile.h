// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What a file looks like from outside, told before the engine touches it.
enum class DatabaseFileKind {
    Missing,
    Unopenable,   // a folder, a device, or a file that may not be read
    Empty,        // 0 bytes: the engine would take it for a new database
    Plain,        // an album without a password
    Encrypted,    // may be an album with a password; only trying tells
    OldAlbum,     // made by the engine that albums were kept in formerly
    NotADatabase, // something else, or an encrypted album cut off
};

DatabaseFileKind KindOfDatabaseFile(const QString& path);

// Whether the file or its folder cannot be written; the engine keeps a journal beside the file
// while it changes it.
bool IsReadOnlyDatabaseFile(const QString& path);
