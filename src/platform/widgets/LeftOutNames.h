// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

struct FolderListing;

// Reports names in a folder that cannot be shown, once for each folder.
class LeftOutNames
{
public:
    // In text %1 stands for their number and %2 for the folder.
    void Tell(const FolderListing& listing, const QString& folder, const QString& text);

private:
    QSet<QString> toldOf_; // folders
};
