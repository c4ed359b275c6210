// SPDX-License-Identifier: MIT
#include "gallery/AlbumThumbnails.h"

#include "core/Album.h"
#include "core/AlbumPassword.h"
#include "core/LocalCopy.h"

using namespace GeneralModule;

ThumbnailStore::Surroundings SurroundingsInAlbum(const std::function<bool()>& isSeen)
{
    return {.findPath =
                [](const QString& file) {
                    const NoWaiting noWaiting; // no key could be handled meanwhile
                    return FindPictureFile(file);
                },
            // Those of an album with a password would lie there for everyone to see.
            .mayShare = [] { return IsAlbumOpen() && !AlbumHasPassword(); },
            .mayWork = [isSeen] { return isSeen() && IsAlbumOpen(); }};
}
