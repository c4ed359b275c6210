// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

// What an album's file defines, judged by the definitions' text alone: the engine's parser has not
// seen them yet, and some that no author could have had stored crash it.

// Columns, their types, simple defaults and keys. Nothing that is computed, checked or selected,
// no rule for settling conflicts (which deletes rows unasked), and rows that have a number.
bool IsPlainTable(const QByteArray& sql);
// Columns by their names, of all rows.
bool IsPlainIndex(const QByteArray& sql);
