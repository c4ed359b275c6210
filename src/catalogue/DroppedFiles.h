// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

// Files that were dragged onto a window, told apart by their names.
struct DroppedFiles
{
    Q_DECLARE_TR_FUNCTIONS(DroppedFiles)

public:
    // Lines for the user about those that cannot be read or have no usable name.
    QStringList DescribeUnusable() const;
    // The same, and about those that are no pictures.
    QStringList DescribeLeftOut() const;

    QStringList albums;                  // full paths
    QMap<QString, QStringList> pictures; // names by folder
    int pictureCount = 0;
    int unusable = 0;       // names that are not valid text
    int others = 0;         // neither, or not on this computer
    QStringList unreadable; // a line for each folder that could not be read to its end
};

// A dropped folder stands for the picture files that lie in it, and for those in the folders inside
// where the user, who is asked for that, agrees. None when the user gives up then, or stops the
// walk through the folders.
std::optional<DroppedFiles> SortDroppedFiles(const QList<QUrl>& urls, bool asksForFolders);
