// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

// The least that any JPEG viewer must do: the library's own scaled decode into 32-bit pixels, at
// the smallest step of eighths that is not below the size asked for. Nothing is turned, converted
// or scaled any further. For the benchmark's own files only: a damaged file ends the process.

void DecodeBare(const QString& path, QSize size);

// The same for all files, on as many threads.
void DecodeAllBare(const QStringList& paths, QSize size, int threads);
