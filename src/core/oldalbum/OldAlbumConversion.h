// SPDX-License-Identifier: MIT
#pragma once

#include "core/oldalbum/OldAlbumReport.h"
#include "platform/oldalbum/OldAlbumFile.h"

#include <functional>

namespace GeneralModule {

struct ConversionOrder
{
    QString target;        // path of the new album
    QString password = {}; // of the new album; empty for none
    bool replaces = false; // a file that is at the target's place
    // Asked now and then; what it throws ends the conversion.
    std::function<void()> check = {};
};

// Makes a new album from everything that can be read in the old one, which is not changed. The new
// file is written beside the target and gets its name only when it is complete and opens; if
// anything throws, no part of it remains and an existing target is unchanged. Shows no boxes.
// Throws DatabaseError.
OldAlbumReport ConvertOldAlbum(OldAlbumFile& old, const ConversionOrder& order);

} // namespace GeneralModule
