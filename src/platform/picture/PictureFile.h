// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QSize>
#include <QString>

// Checks of a picture file before a decoder may touch it.

// Opens a regular file that is not too large; false for anything else. A pipe or a device would
// block or never end.
bool OpenPictureFile(QFile& file, const QString& path);

// The decoder's name for the file's contents, read without moving in the file; empty for kinds that
// are not photographs, and for endless headers. The extension is ignored: drawings and documents
// with a photograph's name never reach the code that would run them.
QByteArray PictureFormatOf(QFile& file);

// False when size (pixels) is empty, too large for the decoder of that format, or too large for a
// file of fileBytes.
bool IsPlausibleSize(const QByteArray& format, QSize size, qint64 fileBytes);

// True when a PNG is stored in seven passes over the whole picture. Read without moving in the
// file.
bool IsInterlacedPng(QFile& file);

// The size that a WebP file claims; its decoder reads on to the file's real end.
qint64 WebpBytes(QFile& file);
