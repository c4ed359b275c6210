// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Copies the open album's file, still locked with its password where it has one, beside it under a
// name of its own: "story (note).alb", numbered when that is taken. Nobody can write to the album
// meanwhile. Returns the copy's path; throws DatabaseError when it cannot be made whole, and leaves
// nothing behind then.
QString CopyAlbumBeside(const QString& note);

} // namespace GeneralModule
