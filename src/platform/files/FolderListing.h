// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

struct FolderListing
{
    QStringList names;    // sorted without regard to case
    QStringList unusable; // those that are no valid text, as near as text can come to them
    QString error;        // why the folder could not be read to its end; empty when it could
};

// The files or the folders that lie directly in a folder, links to such among them. Hidden ones
// are left out. By a name that is no valid text no file could be found again, so such are told
// apart.
FolderListing ListFiles(const QString& folder);
FolderListing ListFolders(const QString& folder);

// The path of something in a folder. The folder may or may not end in the separator.
QString PathIn(const QString& folder, const QString& name);

// Where a user looks for documents first: the folder that the desktop keeps for them, else the
// user's own.
QString UsersDocumentFolder();

// Where a user looks for pictures first: the folder that the desktop keeps for them, else the
// user's own.
QString UsersPictureFolder();
