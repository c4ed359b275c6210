// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// The folders of the album's pictures, each with its separator at the end, in the order of the
// pictures; a folder whose pictures do not lie beside each other comes more than once.
QStringList PictureFolders();

// Told how many references were updated; returns false to stop.
using MovingProgress = std::function<bool(int updated)>;

struct RepointedPictures
{
    int updated = 0;
    int alreadyHeld = 0; // kept their path, because another picture of the album has the new one
};

// Every picture below oldFolder (as PictureFolders gives it), also in folders of it, that now lies
// in newFolder itself gets its new path, unless another picture of the album has that one; those
// that lie directly in oldFolder have their turn first. Names without a point are left alone. What
// was changed before a stop or an error stays. Throws DatabaseError.
RepointedPictures RepointPictures(const QString& oldFolder, const QString& newFolder,
                                  const MovingProgress& progress);
