// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

// Work that takes a while, which a kill may end at any moment. It is about one file of a folder.
struct LongWork
{
    enum class Commits {
        Steps,   // whole steps only: the file is as it was before one, or as after it
        OnItsWay // also between: each row is as it was before, or as it is afterwards
    };
    enum class Album { Open, Closed };

    QString name;
    QString place; // the file's name
    int steps = 1; // each is acknowledged when it has returned
    Commits commits = Commits::Steps;
    Album album = Album::Open;  // when the work begins
    bool canBeLocked = true;    // the same is done to an album with a password
    bool hasWholeChains = true; // also before it
    std::function<void(const QString& folder)> prepare;
    // What a step does depends on its number and on what is in the album, nothing else.
    std::function<void(const QString& folder, int step)> run;
};

inline const QString oldPassword = QStringLiteral("it's the old one");
inline const QString newPassword = QStringLiteral("the new one");

// Every kind of it. Conversion only where an album in the former file format is given.
std::vector<LongWork> EveryLongWork(const QString& oldAlbum);
