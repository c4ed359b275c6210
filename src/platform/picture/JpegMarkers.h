// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// The markers of a JPEG file, after a byte of 0xFF.
namespace JpegMarker {

enum : uchar {
    none = 0x00, // within a scan: a byte of 0xFF
    restartFirst = 0xD0,
    start = 0xD8,
    end = 0xD9,
    scan = 0xDA,
    programFirst = 0xE0,
    exif = 0xE1,
    profile = 0xE2,
    colours = 0xEE,
    programLast = 0xEF,
    comment = 0xFE,
    fill = 0xFF,
};

// Bytes of a scan that are no segment's beginning.
constexpr bool IsWithinScan(uchar marker)
{
    return marker == none || marker == fill || (marker >= restartFirst && marker < start);
}

// Markers without a length and a body.
constexpr bool IsBare(uchar marker)
{
    return marker == 0x01 || (marker >= restartFirst && marker <= end);
}

constexpr bool IsOfPrograms(uchar marker)
{
    return (marker >= programFirst && marker <= programLast) || marker == comment;
}

} // namespace JpegMarker
