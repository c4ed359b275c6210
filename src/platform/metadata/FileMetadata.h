// SPDX-License-Identifier: MIT
#pragma once

#include "platform/helper/HelperProcess.h"
#include "platform/metadata/MetadataStream.h"

#include <QMap>
#include <QString>

#include <vector>

// A text that a file or its sidecar holds, and the field that it stands in.
struct FieldText
{
    QString text;
    // "Xmp.dc.description"; in the user's language "Xmp.dc.description/fr"; of a sidecar
    // "Xmp.dc.description (.xmp)".
    QString field;

    bool operator==(const FieldText&) const = default;
};

// When a picture was taken, as far as it says.
struct TakenDate
{
    int year = 0;
    int month = 0; // 1 to 12; 0: not said
    int day = 0;   // 1 to 31; 0: not said

    bool operator==(const TakenDate&) const = default;
};

struct FieldDate
{
    TakenDate date;
    QString field;

    bool operator==(const FieldDate&) const = default;
};

// What a picture file and its sidecars say. XMP counts before IPTC and that before EXIF, and a
// sidecar before the picture; of a list the first ones count most.
struct FileMetadata
{
    enum class State { Read, NotThere, OtherFormat, Damaged };

    State state = State::Damaged;    // entries of a damaged file are those in front of the damage
    std::vector<FieldText> captions; // none that a camera writes by itself
    std::vector<FieldText> keywords; // each once, without regard to case
    std::vector<FieldDate> dates;    // at last the file's own time, which copying may change
    // The program's own fields of a sidecar, by name, as they are written there.
    QMap<QString, QString> ownFields;
    QString sidecarCaption; // the default caption of the sidecar with the own fields
};

// contents: the answer of lumenark-metadata; none means that the file made it fail.
FileMetadata MetadataFrom(std::optional<QByteArrayView> contents);

// The date that a text begins with: "1998:07:14 12:00:00", "1998-07", "19980714". A part that is 0,
// blank or impossible is left out; a year of 0 means no date.
TakenDate DateFrom(const QString& text);
