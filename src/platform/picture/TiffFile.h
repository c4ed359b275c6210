// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>

// Memory in bytes that the decoder needs besides the picture: for the tags, in the sizes that the
// file claims, and for one strip or tile, both stored and decoded. Estimated from the first
// directory of a TIFF file; 0 when that cannot be read, since the decoder cannot read it either.
qint64 TiffDecoderBytes(QIODevice& file);
