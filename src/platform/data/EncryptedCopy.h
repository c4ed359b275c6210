// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Copies an album without a password to a new file that has one. The source must be closed and of
// our own making: its schema is taken over unchecked. Throws DatabaseError.
void CopyEncrypted(const QString& source, const QString& target, const QString& password);
