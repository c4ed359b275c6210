// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Whether the open album is locked with a password.
bool AlbumHasPassword();

// Gives the open album that password, or takes it away when it is empty. The album is written anew,
// checked, and then takes the place of the old file in one step; it stays open. Throws
// DatabaseError when that fails; the album is then as it was.
void SetAlbumPassword(const QString& password);

// Clears away what a change of the album's password that was broken off has left beside it, and
// says so. The album itself is then as it was before that change, or as it is after it.
void ClearBrokenPasswordChange(const QString& album);

} // namespace GeneralModule
