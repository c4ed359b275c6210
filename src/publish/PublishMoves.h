// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

// Exchanges files of a folder for those that lie ready in another one on the same disk, so that all
// of it can be undone until the moves are gone. All paths are absolute and without "/" at the end.
// A file that is exchanged is there at every moment, on file systems that know hard links.
class PublishMoves
{
public:
    // ready: where the new files are; aside: for the old ones.
    PublishMoves(const QString& folder, const QString& ready, const QString& aside);

    // Puts the file in place, and its folders where they are missing. Nothing where no file is
    // ready. Throws std::system_error.
    void Place(const QString& name);
    // Throws std::system_error.
    void TakeAway(const QString& name);
    // Removes the folders that taking away left empty.
    void RemoveEmptyFolders();

    // As it was before. False when that failed too.
    bool Undo();

private:
    struct Move
    {
        QString name;
        bool hadOld = false;
        bool isPlaced = false;
    };

    void SetAside(const QString& name);
    void MakeFolderOf(const QString& name);
    bool TakeBack(const Move& move) const;

    QString folder_;
    QString ready_;
    QString aside_;
    std::vector<Move> moves_;
    QStringList madeFolders_; // outer ones first
    QStringList leftFolders_;
};

// Throws std::system_error where a folder on the way to the name is a link or a file.
void RequireInside(const QString& folder, const QString& name);
