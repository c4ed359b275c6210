// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

// A GIF file up to the end of its first picture, without comments: the decoder reads all pictures
// and all comments before it even gives the size. The file is open and at its start.
QByteArray ReadFirstOfGif(QIODevice& file);
