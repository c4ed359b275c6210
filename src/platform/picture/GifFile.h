// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

// A GIF file up to the end of its first picture, without comments: the decoder looks through all
// pictures and all comments before it tells even the size. The file is open and at its start.
QByteArray ReadFirstOfGif(QIODevice& file);
