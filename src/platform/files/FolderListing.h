// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

struct FolderListing
{
    QStringList names;    // sorted, ignoring case
    QStringList unusable; // names that are not valid text, approximated
    QString error;        // why the folder could not be read to its end; empty when it could
};

// The files or the folders directly in a folder, including links to them, without hidden ones. A
// name that is not valid text could not be used to find its file again, so such names are kept
// apart.
FolderListing ListFiles(const QString& folder);
FolderListing ListFolders(const QString& folder);

// The path of something in a folder. The folder may or may not end in the separator.
QString PathIn(const QString& folder, const QString& name);

// Where a user looks for documents first: the desktop's folder for them, else the home folder.
QString UsersDocumentFolder();

// Where a user looks for pictures first: the desktop's folder for them, else the home folder.
QString UsersPictureFolder();
