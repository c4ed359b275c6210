// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

inline const QString albumPassword = QStringLiteral("it's locked");

// Makes albums of many kinds in the folder, with pictures, and files that are none. Returns the
// names of the albums.
QStringList MakeAlbums(const QString& folder);

// Whether the chains of the album, or of the one that it is a copy of, were whole when it was made.
inline bool IsWhole(const QString& name)
{
    return !name.startsWith(QLatin1String("broken"));
}
