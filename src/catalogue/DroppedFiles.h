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

// Which pictures of a dropped folder are meant.
enum class FolderDepth { Folder, FoldersInside };

// Asks whether the folders inside are meant too, where one of those dropped has any. None when the
// user gives up.
std::optional<FolderDepth> AskForDepth(const QList<QUrl>& urls);

// A dropped folder stands for the picture files that lie in it.
DroppedFiles SortDroppedFiles(const QList<QUrl>& urls, FolderDepth depth);
