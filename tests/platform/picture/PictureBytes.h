// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

// Picture files for the tests, made in memory.

QByteArray Encoded(const QImage& image, const char* format, bool progressive = false);

// A JPEG whose EXIF block asks for a turn; orientation as stored, so 1 to 8 where it is valid.
QByteArray WithOrientation(const QByteArray& jpeg, char orientation);

// A JPEG whose EXIF block holds a thumbnail besides.
QByteArray WithThumbnail(const QByteArray& jpeg, const QByteArray& thumbnail, char orientation);

// A JPEG whose frame header claims another size. The rest stays.
QByteArray WithClaimedJpegSize(QByteArray jpeg, QSize size);

// A PNG that claims 100,000 by 100,000 pixels and ends where they should begin.
QByteArray AbsurdPng();

// A 24-bit bitmap of that header, pixels following. A negative height means top-down.
QByteArray Bitmap(QSize size, const QByteArray& pixels);

// One pixel of red, then one of blue.
QByteArray TwoFrameGif();
