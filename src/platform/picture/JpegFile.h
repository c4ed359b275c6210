// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

// A JPEG file without what its pixels and colours do not need. The decoder keeps all comments and
// application segments in memory until it is done, however many there are.

// Reads up to the first scan's header. The file is open and at its start, and is left where the
// scan's data begin. Of a file damaged before that, returns what was read.
QByteArray ReadJpegHead(QIODevice& file);

// Adds the scans to the head, up to the picture's end.
void AppendJpegScans(QByteArray& jpeg, QIODevice& file);

// True when the decoder must hold the whole JPEG before its first line is done: progressive ones,
// and those that store their colours one after the other. Also false when the header is damaged.
bool JpegNeedsWholePicture(const QByteArray& jpeg);

// Memory for that in bytes, estimated from the header alone.
qint64 JpegWholeBytes(const QByteArray& jpeg);

// False when there are so many scans that drawing the picture would take minutes.
bool HasSensibleScans(const QByteArray& jpeg);
