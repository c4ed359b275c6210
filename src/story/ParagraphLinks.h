// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Pictures that a paragraph shows whatever its filter says.

bool IsLinked(qint32 paragraph, const QString& file);

// Once only: a picture that is linked already is not linked again.
void SetLinked(qint32 paragraph, const QString& file, bool linked);
