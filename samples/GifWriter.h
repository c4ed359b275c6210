// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

// Writes a still GIF of at most 256 colours chosen from the image; false when it cannot.
bool WriteGif(const QImage& image, const QString& path);
