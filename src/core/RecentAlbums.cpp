// SPDX-License-Identifier: MIT
#include "core/RecentAlbums.h"

#include "core/Settings.h"

namespace {

constexpr int longestList = 10;
const QString section = QStringLiteral("RecentAlbums");

QString KeyOf(int place)
{
    return QStringLiteral("Album%1").arg(place + 1);
}

} // namespace

namespace GeneralModule {

QStringList RecentAlbums()
{
    QStringList albums;
    for (int place = 0; place < longestList; ++place) {
        const QString path = GetUserSetting(section, KeyOf(place));
        if (!path.isEmpty())
            albums += path;
    }
    return albums;
}

void RememberRecentAlbum(const QString& path)
{
    QStringList albums = RecentAlbums();
    if (!albums.isEmpty() && albums.first() == path)
        return;
    albums.removeAll(path);
    albums.prepend(path);
    const int count = qMin(int(albums.size()), longestList);
    for (int place = 0; place < count; ++place)
        SaveUserSetting(section, KeyOf(place), albums[place]);
}

} // namespace GeneralModule
