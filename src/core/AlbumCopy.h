// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Copies the open album's file, still encrypted if it has a password, beside it under the name
// "story (note).alb", numbered when that is taken. Nobody can write to the album during the copy.
// Returns the copy's path. Throws DatabaseError when the copy fails; then no part of it remains.
QString CopyAlbumBeside(const QString& note);

} // namespace GeneralModule
