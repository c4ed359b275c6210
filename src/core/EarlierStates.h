// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

// Copies of albums as they were, one file each, in a folder for each album. A state is a whole
// album, with the password that the album had then, and was found sound when it was kept.
namespace GeneralModule {

struct EarlierState
{
    QString path;
    QDateTime kept;          // to the second, in local time
    qint64 size = 0;         // bytes
    bool isReplaced = false; // kept because an earlier one was taken back in its place
};

// The folder that holds those of all albums: the user's choice, or one in the user's data folder.
QString StatesFolder();
// States that are in the former folder stay there. An empty path stands for the user's data folder.
void SetStatesFolder(const QString& folder);

// The album's folder in there, whether it exists or not. Two albums of one name have two, and the
// same album one, by whatever path it is named.
QString StatesFolderOf(const QString& album);

// The album's states, the newest first. Reads the folder, but none of the files.
std::vector<EarlierState> EarlierStatesOf(const QString& album);

// The states that nobody needs a password to read.
std::vector<EarlierState> PlainStatesOf(const QString& album);

// Whether the file is one of any album's states. Then album is the path of that album.
bool IsEarlierState(const QString& path, QString* album = nullptr);

// When the state at that path was kept; invalid for the path of anything else.
QDateTime StateTime(const QString& path);

// A state's time as users read it, with the day of the week.
QString TimeText(const QDateTime& kept);

// How many megabytes the states of one album may take; the newest always stays.
int StatesLimit();
void SetStatesLimit(int megabytes);

// Removes the file, and its folder where it was the last one. False when it cannot be removed.
bool RemoveState(const EarlierState& state);

// Where a new state goes. Makes the album's folder, which only the user may open, with a note of
// the album's path. Throws DatabaseError DiskError.
QString NewStatePath(const QString& album, const QDateTime& kept, bool isReplaced);

// Removes what the album needs no more and what is beyond the limit.
void ThinStates(const QString& album, const QDateTime& now);

} // namespace GeneralModule
