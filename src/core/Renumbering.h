// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace GeneralModule {

// Gives the chapters and paragraphs of an album whose identifier is out of the range of identifiers
// a new one, and the links that name them with it; 0 is no link. Returns how many there were.
// Throws DatabaseError. Hold a WriteBatch.
int RenumberRows(sqlite3* engine);

} // namespace GeneralModule
