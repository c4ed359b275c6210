// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>

QByteArray ReadFile(const QString& path);
// Makes the folder too.
void WriteFile(const QString& path, const QByteArray& contents = {});
// Writes a one-coloured picture file; the kind follows from the name.
void PaintPicture(const QString& path, QSize size, const QColor& color);
