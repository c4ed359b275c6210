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

// Makes a new album of everything that can be read of the old one, which stays as it is. It is
// written beside the target and takes its name only when it is whole and opens; when anything
// throws, nothing is left of it and a file at the target's place stays as it was. Nothing is asked
// or shown. Throws DatabaseError.
OldAlbumReport ConvertOldAlbum(OldAlbumFile& old, const ConversionOrder& order);

} // namespace GeneralModule
