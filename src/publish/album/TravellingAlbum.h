// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishReport.h"
#include "publish/PublishedStory.h"

#include <QString>

struct TravelOptions
{
    bool onlyStory = false; // the pictures that the story shows instead of all
    int longestEdge = 0; // pixels; larger pictures are scaled to it; 0 copies the files as they are
};

// Copies the open album and its pictures into the folder, which works wherever it is put: the
// pictures lie below it, each under a name that every system takes, and the copy holds their paths
// as they count from its own folder. The copy has the album's password. What an earlier run made of
// the same pictures stays. Pictures without their files stay in the copy and are reported. Progress
// is called in this thread. Moves the record sets. Throws PublishError and DatabaseError; what was
// in the folder before is then as it was, and it is after a stop.
PublishReport TakeAlbumAlong(const TravelOptions& options, const QString& folder,
                             const PublishProgress& progress);
