// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// The albums that the user opened lately, kept for each user outside the albums.
namespace GeneralModule {

// Full paths, the latest first, each once, ten at most. The files may have gone meanwhile: looking
// for each of them would wait for every sleeping disk and absent server.
QStringList RecentAlbums();

// Puts the album at the head of the list.
void RememberRecentAlbum(const QString& path);

} // namespace GeneralModule
