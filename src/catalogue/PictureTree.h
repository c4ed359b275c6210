// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// The usual extensions of what the picture reader knows, see FilePatterns.h; it also reads PPM and
// PGM.
inline const QString readablePictures =
    QStringLiteral("*.jpg;*.jpeg;*.gif;*.bmp;*.png;*.tif;*.tiff;*.webp");

struct PictureFiles
{
    QMap<QString, QStringList> byFolder; // names
    int count = 0;
    int otherKinds = 0;     // pictures whose names do not fit the patterns
    QStringList unreadable; // a line for each folder that could not be read to its end
};

// Adds those of a folder's files that fit the patterns.
void AddPictureFiles(PictureFiles& files, const QString& folder, const QStringList& names,
                     const QString& patterns);

// The files of a folder, of the folders in it, and so on, that fit the patterns; a folder that two
// links lead to counts once, hidden ones do not. goesOn gets the number of files found so far;
// none when it returned false.
std::optional<PictureFiles> FindPictureFiles(const QString& folder, const QString& patterns,
                                             const std::function<bool(int found)>& goesOn);
