// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// The folders of the album's pictures, each with its separator at the end, in the order of the
// pictures; a folder whose pictures are not consecutive occurs more than once.
QStringList PictureFolders();

// Called with the number of references updated; returns false to stop.
using MovingProgress = std::function<bool(int updated)>;

struct RepointedPictures
{
    int updated = 0;
    int alreadyHeld = 0; // path kept, because another picture of the album has the new one
    int linksLeft = 0;   // made by hand, to the former paths of those updated
};

// Gives each picture of oldFolder (as PictureFolders returns it) and its subfolders whose file is
// now directly in newFolder its new path, unless another picture of the album has that path.
// Pictures directly in oldFolder come first. Names without a dot are left alone. What was changed
// before a stop or an error stays. Throws DatabaseError.
RepointedPictures RepointPictures(const QString& oldFolder, const QString& newFolder,
                                  const MovingProgress& progress);
