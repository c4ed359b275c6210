// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishFolder.h"
#include "publish/PublishedStory.h"

#include <QString>

#include <optional>
#include <vector>

// Copies picture files into a folder that is published, on all cores.

struct PictureToCopy
{
    QString source;
    QString name; // in the folder
};

enum class CopyResult {
    Missing,   // no file is there
    Kept,      // an earlier run has made it
    Copied,    // or scaled
    Unreadable // even its bytes
};

struct CopiedPicture
{
    CopyResult result = CopyResult::Missing;
    QString name{};         // which gets another ending when the picture gets another kind
    bool isDamaged = false; // no picture can be read from the file, which is copied as it is
};

// longestEdge, in pixels: a larger picture is scaled to it, upright and in sRGB, as a JPEG file, or
// as PNG where it is transparent; 0 copies all files as they are. The copies keep the times of the
// originals. In the order of the pictures; none when progress, which is called in this thread and
// counts pictures, has stopped it. Throws PublishError when a file cannot be written.
std::optional<std::vector<CopiedPicture>> CopyPictures(const std::vector<PictureToCopy>& pictures,
                                                       int longestEdge, PublishFolder& folder,
                                                       const PublishProgress& progress);
