// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>

// Memory in bytes that the decoder takes besides the picture: for the tags, whose sizes are what
// the file claims, and for one strip or tile, as stored and as decoded. A guess from the first
// directory of a TIFF file; 0 when that cannot be read, as it cannot by the decoder.
qint64 TiffDecoderBytes(QIODevice& file);
