// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/Database.h"

#include <QString>

// Tables and fields that a user added to an old album. They are added to the new album too, all as
// texts.
namespace GeneralModule {

// Make a table with that one field, or add a field to a table. They return the name used: the given
// one or, if the engine rejects it, the same with an underscore before it; null when both are
// rejected or the album would exceed its limits.
QString MakeOwnTable(Database& database, const QString& table, const QString& firstField);
QString AddOwnField(Database& database, const QString& table, const QString& field);

} // namespace GeneralModule
