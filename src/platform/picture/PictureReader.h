// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <vector>

// The one way from a picture file to pixels: the same file looks the same in every window.

// What a file's header says.
struct PictureInfo
{
    QSize size; // pixels, upright (after the turn that the file asks for); empty when unreadable

    bool IsReadable() const { return !size.isEmpty(); }
};

// Reads only the header. A missing, unknown or damaged file gives an unreadable info, never an
// error.
PictureInfo ReadPictureInfo(const QString& path);

// Decodes the picture directly at size (pixels, upright), turned as the file asks and in sRGB.
// Returns a null image when the file cannot be read.
QImage ReadPicture(const QString& path, QSize size);

struct PictureRequest
{
    QString path;
    QSize size; // pixels, upright
};

// Decodes all of them on all cores and returns when the last is done; the images are in the order
// of the requests, null where a file could not be read.
std::vector<QImage> ReadPictures(const std::vector<PictureRequest>& requests);
