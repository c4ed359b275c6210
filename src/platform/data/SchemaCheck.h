// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

// An album from a stranger is data, not code. Throws DatabaseError NotADatabase when the file
// defines anything but plain tables and indexes (triggers, views, virtual tables, expressions that
// run by themselves), or Damaged when two of them claim the same place in the file.
// Reads the definitions as text before any of them takes effect.
void CheckSchema(sqlite3* engine);
