// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QSize>
#include <QString>

// What must be known of a picture file before a decoder may touch it.

// Opens a regular file that is not too large; false for anything else. A pipe or a device would
// block or never end.
bool OpenPictureFile(QFile& file, const QString& path);

// The decoder's name for the file's contents, read without moving on; empty for kinds that are not
// photographs, and for headers without an end. The extension is not looked at, and no decoder is
// guessed: drawings and documents under a photograph's name never reach the code that would run
// them.
QByteArray PictureFormatOf(QFile& file);

// False when size (pixels) is empty, more than the decoder of that format can be trusted with, or
// too much to come out of a file of fileBytes.
bool IsPlausibleSize(const QByteArray& format, QSize size, qint64 fileBytes);

// True when a PNG comes in seven passes over the whole picture. Read without moving on.
bool IsInterlacedPng(QFile& file);

// Where a WebP file says that it ends; its decoder reads on to the file's end.
qint64 WebpBytes(QFile& file);
