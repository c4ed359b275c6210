// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

// The store in which the programs of a desktop share thumbnails of files: the Thumbnail Managing
// Standard of freedesktop.org, version 0.9. It lies in the user's cache folder. Paths are absolute;
// modified is the file's time in seconds since 1970.

// The smallest side of a square that thumbnails of at least that side (pixels) are made for; 0 when
// it is more than the store keeps.
int SharedSideFor(int side);

// What the standard calls the file's URI, escaped like those of GLib: programs find each other's
// thumbnails only when they escape alike.
QByteArray ThumbnailUri(const QString& path);

// A thumbnail of the file as it is now, made for a square of at least that side. Null when there is
// none.
QImage FindSharedThumbnail(const QString& path, qint64 modified, int side);

// Adds one, made for a square of a side of SharedSideFor. Thumbnails of thumbnails are not added.
// False when the store cannot be written.
bool ShareThumbnail(const QString& path, qint64 modified, int side, const QImage& image);
