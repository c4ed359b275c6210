// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/DatabaseCopy.h"

#include <QString>

namespace GeneralModule {

// Copies the open album's file, still encrypted if it has a password, beside it under the name
// "story (note).alb", numbered when that is taken. Nobody can write to the album during the copy.
// Returns the copy's path, empty when progress stopped it. Throws DatabaseError when the copy
// fails. No part of it remains after both.
QString CopyAlbumBeside(const QString& note, const CopyProgress& progress);

} // namespace GeneralModule
