// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

namespace GeneralModule {

bool IsAlbumOpen();

// Whether the open album can only be read: its file or its folder cannot be written. False while
// none is open.
bool IsAlbumReadOnly();
// What to tell whoever wants to change it.
QString ReadOnlyReason();

// Releases the album that is open, opens this one, and remembers it as the last one. Asks for the
// password, unless the one given fits, until it does or the answer is empty. False, with a message
// shown unless the user gave up, when the album could not be opened. No album is open while boxes
// are up, nor after a failure. Of an album in the former file format a new one is made, if the user
// agrees, and that is the one that is opened and remembered. Where another copy of the program has
// the album open, the user may go there instead.
bool OpenAlbum(const QString& path, const QString& password = {});

// Whether the last OpenAlbum ended with the user going to another window that has the album open.
bool HasGoneToOtherWindow();

// Runs when another copy of the program sends the user to the window that has the album open.
void SetCallHandler(const std::function<void()>& onCalled);

// Copies the template to path, over a file that is there. False, with a message shown, when that
// fails; an existing file then stays as it was.
bool CreateAlbumFile(const QString& path);

// Ends the use of the album, so that its file may be moved or removed.
void ReleaseAlbum();

} // namespace GeneralModule
