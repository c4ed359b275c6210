// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// The albums that the user opened recently, kept per user outside the albums.
namespace GeneralModule {

// Full paths, the latest first, each once, at most ten. Whether the files still exist is not
// checked: that would wait for every sleeping disk and unreachable server.
QStringList RecentAlbums();

// Puts the album at the head of the list.
void RememberRecentAlbum(const QString& path);

} // namespace GeneralModule
