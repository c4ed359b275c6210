// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QPainter;
class QRect;

// Line drawings of resources/icons, in the colours of the desktop's theme.

// Sharp at every size and scale; follows changes of the application's palette, and is grey for
// disabled controls. An unknown name gives an empty icon.
QIcon ThemedIcon(const QString& name);

// The program's own picture, in colours.
QIcon ProgramIcon();

void DrawIcon(QPainter& painter, const QString& name, const QRect& rect, const QColor& ink);
