// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>

class Database;

namespace GeneralModule {

bool IsAlbumOpen();

// Full path of the open album; empty while none is open.
QString OpenAlbumPath();

// Of what the open album's tables hold. Two that are equal mean that nothing has changed.
struct AlbumVersion
{
    int changesHere = 0;         // by this program
    qint64 changesElsewhere = 0; // by other programs

    bool operator==(const AlbumVersion&) const = default;
};

// What to call it: the file's name, or which earlier state of which album it is.
QString OpenAlbumTitle();

// Throws DatabaseError, NoAlbum while none is open.
AlbumVersion GetAlbumVersion();

// While one lives, to read or change the open album throws DatabaseError InUse at once where
// another program has it locked; otherwise that program is waited for, some seconds. Throws
// NoAlbum while none is open.
class NoWaiting
{
public:
    NoWaiting();
    ~NoWaiting();
    Q_DISABLE_COPY_MOVE(NoWaiting)

private:
    std::shared_ptr<Database> database_;
    bool wasWaiting_;
};

// Whether the open album can only be read: its file or its folder cannot be written. False while
// none is open.
bool IsAlbumReadOnly();
// Why it cannot be changed, for the user to read.
QString ReadOnlyReason();

// Closes the open album, opens this one, and remembers it as the last one. Unless the given
// password is right, asks for one until it is or the answer is empty. Returns false when the album
// was not opened, after a message unless the user gave up. No album is open while boxes are up, or
// after a failure. An album in the former file format is converted if the user agrees, and the new
// one is opened and remembered. If another copy of the program has the album open, the user may go
// there instead.
bool OpenAlbum(const QString& path, const QString& password = {});

// The album for which the user wants to see the earlier states, because it could not be opened, or
// empty; once.
QString TakeAlbumToReturn();

// Whether the last OpenAlbum ended with the user going to another window that has the album open.
bool HasGoneToOtherWindow();

// Runs when another copy of the program sends the user to the window that has the album open.
void SetCallHandler(const std::function<void()>& onCalled);

// Copies the template to path, over a file that is there. False, with a message shown, when that
// fails; an existing file then stays as it was.
bool CreateAlbumFile(const QString& path);

// Closes the open album, so that its file can be moved or removed.
void ReleaseAlbum();

} // namespace GeneralModule
