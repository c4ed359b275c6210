// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// What publishing asks of a disk.

// All that was written on the disk of that file or folder is on it, so that a full disk shows
// before anything old is touched. Throws std::system_error.
void WriteThroughDisk(const QString& path);

// Writes a file that is there with all of the text or not at all, and on the disk. Throws
// std::system_error.
void WriteWhole(const QString& path, const QByteArray& text);

// Throws std::system_error. A file that is there is replaced.
void MoveFile(const QString& from, const QString& to);

// With all that a folder holds; links are removed themselves. What cannot be removed stays.
void RemoveAll(const QString& path);
