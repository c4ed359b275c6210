// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

// Links to pictures that a paragraph of the open album shows whatever its filter says. They move
// the current row of LinkedImagesSet, and throw DatabaseError, NoAlbum while no album is open.

bool IsLinked(qint32 paragraph, const QString& file);

// The linked pictures' files.
QSet<QString> LinkedFiles(qint32 paragraph);

// A picture that is already linked is not linked again.
void SetLinked(qint32 paragraph, const QString& file, bool linked);
// The same for many, committed together: all or none.
void SetLinked(qint32 paragraph, const QStringList& files, bool linked);
