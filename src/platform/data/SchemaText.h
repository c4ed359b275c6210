// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

// Judges an album's definitions by their text alone: the engine's parser has not seen them yet, and
// forged ones can crash it.

// True for columns with types, simple defaults and keys. False for anything computed, checked or
// selected, for conflict rules (which delete rows unasked), and for tables without row numbers.
bool IsPlainTable(const QByteArray& sql);
// True for an index of plain columns over all rows.
bool IsPlainIndex(const QByteArray& sql);
