// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

struct FolderListing;

// Tells of names in a folder that cannot be shown, once for each folder.
class LeftOutNames
{
public:
    // Text takes their number and the folder as %1 and %2.
    void Tell(const FolderListing& listing, const QString& folder, const QString& text);

private:
    QSet<QString> toldOf_; // folders
};
