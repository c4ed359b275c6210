// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// The path from which to read a picture of the album: its local copy while that exists, else the
// file itself. A missing copy is removed from the album, unless that is read-only. Moves the
// current row of ImageSet. Throws DatabaseError, NoAlbum while no album is open.
QString ResolvePictureFile(const QString& file);

// The same path, but a missing copy stays in the album.
QString FindPictureFile(const QString& file);

// The same for the two paths that a picture's row holds, the copy's empty for none.
QString PictureFileOf(const QString& file, const QString& copy);

// Whether the picture can be read from its file or from that copy (empty for none), the two paths
// that its row holds.
bool IsPictureThere(const QString& file, const QString& copy);

} // namespace GeneralModule
