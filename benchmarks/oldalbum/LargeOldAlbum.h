// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Writes a copy of a sound Jet 4 album without encoded pages in which the pages of the picture
// table stand again and again behind each other, until they hold that many pictures or somewhat
// more. Returns how many there are, 0 with the reason printed when that cannot be done.
qint64 WriteLargeOldAlbum(const QString& source, const QString& target, qint64 pictures);
