// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

// The chunks of PNG files, for tests and the fuzz program.

// With its checksum. It may claim another length than it has.
QByteArray PngChunk(const QByteArray& type, const QByteArray& data,
                    std::optional<quint32> claimed = {});

// Where a chunk begins: its length, 4 bytes before its type. -1 when there is none.
qsizetype PngChunkAt(const QByteArray& png, const char* type);

// A text under a key, deflated.
QByteArray DeflatedText(const QByteArray& text);
