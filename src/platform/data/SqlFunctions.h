// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

struct sqlite3;

// What filters need beyond the engine's own SQL. None of the names may appear in an album's schema:
// the file must open in any other program that reads this format.

// Function (pattern, text): the engine's LIKE with the wildcards of LikePattern, ignoring case.
// Null text gives Null.
inline constexpr char likeFunction[] = "engine_like";

// The same for picture paths: letter case matters where it does in file names.
inline constexpr char pathLikeFunction[] = "engine_like_path";

// Function (values, text): whether the text is one of any number of values, ignoring case. The
// values come from JoinedForAnyOf. Null text gives Null.
inline constexpr char anyOfFunction[] = "engine_any_of";
QString JoinedForAnyOf(const QStringList& values);

// Collation that ignores the case of all letters, not only ASCII.
inline constexpr char foldedCollation[] = "folded";

// Throws DatabaseError.
void RegisterSqlFunctions(sqlite3* engine);
