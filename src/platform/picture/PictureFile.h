// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QSize>
#include <QString>

// What must be known of a picture file before a decoder may touch it.

// Opens a regular file; false for anything else. A pipe or a device would block or never end.
bool OpenPictureFile(QFile& file, const QString& path);

// The decoder's name for the file's contents, read without moving on; empty for kinds that are not
// photographs. The extension is not looked at, and no decoder is guessed: drawings and documents
// under a photograph's name never reach the code that would run them.
QByteArray PictureFormatOf(QFile& file);

// False when size (pixels) is empty, more than the decoder of that format can be trusted with, or
// too much to come out of a file of fileBytes.
bool IsPlausibleSize(const QByteArray& format, QSize size, qint64 fileBytes);

// True when the decoder must hold the whole JPEG before its first line is done: progressive ones,
// and those whose colours come one after the other. False also when the header is damaged.
bool JpegNeedsWholePicture(const QByteArray& jpeg);
