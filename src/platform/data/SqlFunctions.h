// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

// What filters need beyond the engine's own SQL. Neither name may appear in an album's schema: the
// file must open in any other program that reads this format.

// Function (pattern, text): the engine's LIKE with the wildcards of LikePattern, without regard to
// case. Null text gives Null.
inline constexpr char likeFunction[] = "engine_like";

// The same for picture paths: letter case counts where it does in the names of files.
inline constexpr char pathLikeFunction[] = "engine_like_path";

// Collation without regard to case for all letters, not only ASCII.
inline constexpr char foldedCollation[] = "folded";

// Throws DatabaseError.
void RegisterSqlFunctions(sqlite3* engine);
