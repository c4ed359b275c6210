// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QSize>
#include <QStringList>

// Paints JPEG files as a camera might have taken them: smooth skies, fine patterns and sensor
// noise, about 0.4 bytes a pixel. Each file differs. Empty when the folder cannot be written.
QStringList PaintPictures(const QDir& folder, QSize size, int count);
