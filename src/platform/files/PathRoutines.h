// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

// Paths as albums hold them. Both separators count wherever the platform writes "/", because albums
// also come from systems that write "\".
// Up to and including the last separator; empty when there is none.
QString FolderOf(const QString& path);
// The same of a path in UTF-8.
std::string_view Utf8FolderOf(std::string_view path);

// After the last separator; the whole text when there is none.
QString FileNameOf(const QString& path);

// Before the first separator; the whole text when there is none.
QString DriveOf(const QString& path);
