// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

// Takes files dropped on a paragraph: adds those pictures to the album that it does not hold yet,
// and links all of them to the paragraph. A message box tells what is left out. Returns the linked
// files. Throws DatabaseError, and std::runtime_error when a folder has disappeared;
// what was added before stays, then without a link.
QStringList LinkDroppedFiles(qint32 paragraph, const QList<QUrl>& urls);
