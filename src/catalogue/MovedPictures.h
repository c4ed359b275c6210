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

// Every picture below oldFolder (as PictureFolders gives it), also in folders of it, that now lies
// in newFolder itself gets its new path. Names without a point are left alone. Returns how many
// got one; what was changed before a stop or an error stays. Throws DatabaseError.
int RepointPictures(const QString& oldFolder, const QString& newFolder,
                    const MovingProgress& progress);
