// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

// Called with the number of files done; returns false to stop.
using LoadingProgress = std::function<bool(int done)>;

// Adds files of a folder to the album: each that it does not hold yet becomes a picture without
// values. Returns how many files were processed, new or not; fewer than given when stopped. What
// was added before a stop or an error stays. Throws DatabaseError, and std::runtime_error when the
// folder has disappeared.
int LoadPictures(const QString& folder, const QStringList& names, const LoadingProgress& progress);

// The same for the pictures of several folders.
int LoadPictures(const QMap<QString, QStringList>& namesByFolder, const LoadingProgress& progress);
