// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace GeneralModule {

// Gives a new identifier to chapters and paragraphs whose identifier is out of range, and updates
// the links to them; 0 is no link. Returns how many rows were renumbered. Call inside a WriteBatch.
// Throws DatabaseError.
int RenumberRows(sqlite3* engine);

} // namespace GeneralModule
