// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// The path that a picture of the album is to be read from: its local copy while that exists, else
// file itself. A copy that has gone is forgotten in the album, where that can be changed.
// Moves the current row of ImageSet. Throws DatabaseError, NoAlbum while no album is open.
QString ResolvePictureFile(const QString& file);

} // namespace GeneralModule
