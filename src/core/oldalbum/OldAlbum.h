// SPDX-License-Identifier: MIT
#pragma once

#include "core/oldalbum/OldAlbumReport.h"

#include <QString>

#include <optional>

namespace GeneralModule {

struct NewAlbum
{
    QString path;
    QString password;
    QString report; // for the user to read
    bool isWhole;   // everything came over
};

// Offers to make a new album of one in the former file format: asks for its password if it has one,
// for consent, and for the new path. None when the user gave up. Throws DatabaseError.
std::optional<NewAlbum> OfferConversion(const QString& path);

} // namespace GeneralModule
