// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"

#include <QString>

// Tables and fields that a user added to an old album, for which albums have no place of their own:
// made anew in the new album, all of them for texts.
namespace GeneralModule {

// Makes a table with that one field, or adds a field to a table. Returns the name under which it
// was made: the one given or, where the engine does not take it, the same after an underscore; null
// when it takes neither, or the album would hold more than it may.
QString MakeOwnTable(Database& database, const QString& table, const QString& firstField);
QString AddOwnField(Database& database, const QString& table, const QString& field);

} // namespace GeneralModule
