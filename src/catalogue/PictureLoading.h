// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// Told how many files are done; returns false to stop.
using LoadingProgress = std::function<bool(int done)>;

// Brings files of a folder into the album: each that it does not hold yet becomes a picture without
// values. Returns how many were gone through, new ones or not; fewer than there are when it was
// stopped. What was added before a stop or an error stays. Throws DatabaseError, and
// std::runtime_error when the folder has gone meanwhile.
int LoadPictures(const QString& folder, const QStringList& names, const LoadingProgress& progress);
