// SPDX-License-Identifier: MIT
#pragma once

#include "platform/data/TableLayout.h"

#include <QByteArrayList>
#include <QStringList>

#include <vector>

// How the entries of a ChangeLog come about: by triggers of the connection, which no other program
// sees and which are gone with it.

// What one kind of entry records, and so what takes it back.
struct LoggedChange
{
    enum class Kind {
        Insert, // holds no value
        Delete, // all values of the row
        Update  // the former value of one field
    };

    std::size_t table; // its number among the layouts
    Kind kind;
    int field; // of an Update
};

// Of a table all inserts, deletes and changes of each field; those of one table are consecutive.
// An entry names its change by its number in this list.
// Changes of the fields that are left out are not among them.
std::vector<LoggedChange> LoggedChanges(const std::vector<TableLayout>& layouts,
                                        const QStringList& leftOut);

// Statements that make the log and its triggers. Run them outside a transaction.
QByteArrayList ChangeLogSql(const std::vector<TableLayout>& layouts,
                            const std::vector<LoggedChange>& changes);

// Takes one entry back: parameter 1 is the row, the others are the entry's values.
QByteArray ReverseSql(const TableLayout& layout, const LoggedChange& change);

// For an authorizer: whether the action is one that a trigger of the log takes. source is the name
// of what the engine runs it for; a trigger from the album's file that bears the same name is told
// apart by what it does.
bool IsLogging(int action, const char* object, const char* schema, const char* source);
