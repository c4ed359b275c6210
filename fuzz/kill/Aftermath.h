// SPDX-License-Identifier: MIT
#pragma once

#include "fuzz/kill/LongWork.h"

#include <QByteArrayList>
#include <QString>
#include <QStringList>

// What a kill leaves behind, compared with what the work leads to when nobody disturbs it.

// A kind of work on an album with or without a password, and what was seen of it.
struct Target
{
    LongWork work;
    bool isLocked = false;
    QString folder;        // what is there before
    QByteArrayList states; // before each step, and at the end
    QStringList atEnd;
    double milliseconds = 0;

    int kills = 0; // while it worked
    int before = 0;
    int after = 0;
    int between = 0;
    int journals = 0;
    int folders = 0;

    QString Name() const { return isLocked ? work.name + ", locked" : work.name; }
};

struct Finding
{
    QString fault;
    QString password;
    int step = -1; // the step before which the album stands; -1: in between
    bool hasJournal = false;
    bool hasFolder = false;
};

// Everything in a folder, hidden or not.
QStringList EntriesOf(const QString& folder);
// The same when all is done, without a repair's copies: how often one was begun does not matter.
QStringList EntriesAtEnd(const QString& folder);

// Where the earlier states of the folder's album are kept, in a folder of its own.
void KeepStatesBeside(const QString& folder);
// Leaves none of them.
void ForgetStates(const QString& folder);

// Opens the album that the work takes open. Throws std::runtime_error when it does not open.
void OpenToWork(const Target& target, const QString& folder, const QString& password);

// The state of the target's album in that folder.
QByteArray StateAt(const Target& target, const QString& folder);

// Looks at the album and at what lies beside it, does the rest of the work, and looks again. The
// finding names the first fault; it is no fault that the work has to be done again.
Finding Look(const Target& target, const QString& folder, int acknowledged);
