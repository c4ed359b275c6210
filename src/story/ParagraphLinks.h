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
// The same in the order in which the paragraph shows them, each once.
QStringList LinksInOrder(qint32 paragraph);

// A picture that is already linked is not linked again.
void SetLinked(qint32 paragraph, const QString& file, bool linked);
// The same for many, committed together: all or none.
void SetLinked(qint32 paragraph, const QStringList& files, bool linked);

// Puts those of the files that are linked, in the order of the links, before that one, or at the
// end where it is not linked. All rows or none are written.
void MoveLinks(qint32 paragraph, const QSet<QString>& files, const QString& before);
