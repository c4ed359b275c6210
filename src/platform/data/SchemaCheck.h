// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

// Tables and indexes that a file may hold. An album has about thirty; tens of thousands slow every
// statement.
inline constexpr int maxSchemaObjects = 500;

// An album from a stranger is data, not code. Throws DatabaseError NotADatabase when the file
// defines anything but plain tables and indexes (triggers, views, virtual tables, expressions that
// run by themselves), or Damaged when two of them claim the same place in the file or a wrong name.
// Nothing that the file defines is run for it, and no definition is parsed before its text was
// judged: call it before any other statement that makes the engine read the schema, which nearly
// all do. It holds for albums with a password too, and for what a journal beside the file restores.
void CheckSchema(sqlite3* engine);
