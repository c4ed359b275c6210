// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

// A JPEG file without what its pixels and colours do not need. The decoder keeps every comment and
// every program's segment in memory until it is done, however many there are.

// Up to the first scan's header. The file is open and at its start, and is left where the scan's
// data begin; of a file that is damaged before that, what was read.
QByteArray ReadJpegHead(QIODevice& file);

// Adds the scans to the head, up to the picture's end.
void AppendJpegScans(QByteArray& jpeg, QIODevice& file);

// True when the decoder must hold the whole JPEG before its first line is done: progressive ones,
// and those whose colours come one after the other. False also when the header is damaged.
bool JpegNeedsWholePicture(const QByteArray& jpeg);

// Memory for that, in bytes; a guess from the header alone.
qint64 JpegWholeBytes(const QByteArray& jpeg);

// False when so many scans go over the picture that drawing it would take minutes.
bool HasSensibleScans(const QByteArray& jpeg);
