// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

namespace GeneralModule {

// How many paragraphs each listed chapter has, by the name by which it is listed. Throws
// DatabaseError, NoAlbum while no album is open.
QHash<QString, int> ParagraphCounts();

} // namespace GeneralModule
