// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace GeneralModule {

// Whether the open album is locked with a password.
bool AlbumHasPassword();

// Gives the open album that password, or takes it away when it is empty. A new file is written,
// checked, and then replaces the old one in one step; the album stays open. False when the user
// stopped it; throws DatabaseError when it fails. The album is unchanged after both.
bool SetAlbumPassword(const QString& password);

} // namespace GeneralModule
