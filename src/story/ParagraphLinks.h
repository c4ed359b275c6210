// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Links to pictures that a paragraph shows whatever its filter says.

bool IsLinked(qint32 paragraph, const QString& file);

// A picture that is already linked is not linked again.
void SetLinked(qint32 paragraph, const QString& file, bool linked);
