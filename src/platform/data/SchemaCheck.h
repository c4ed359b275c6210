// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

// Maximum number of tables and indexes in a file. An album has about thirty; tens of thousands slow
// every statement.
inline constexpr int maxSchemaObjects = 500;

// An album from a stranger is data, not code. Throws DatabaseError NotADatabase when the file
// defines more than that, or anything but plain tables and indexes (triggers, views, virtual
// tables, expressions, unknown collations), or Damaged when definitions have the same page or name,
// or one that is wrong. Runs nothing that the file defines, and checks the text of each definition
// before the engine parses it: call it before any statement that makes the engine read the schema,
// as nearly all do. Covers albums with a password too, and what a journal beside the file restores.
void CheckSchema(sqlite3* engine);
