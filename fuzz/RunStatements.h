// SPDX-License-Identifier: MIT
#pragma once

#include "core/AlbumSets.h"

#include <QByteArray>

// Statements with ";" between them, through the open album's own connection: where that does not
// wait for the disk, these do not either.
inline void RunStatements(const QByteArray& statements)
{
    for (const QByteArray& statement : statements.split(';')) {
        if (!statement.isEmpty())
            GeneralModule::AlbumDatabase->Execute(statement);
    }
}
