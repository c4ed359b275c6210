// SPDX-License-Identifier: MIT
#include "catalogue/PicturePaths.h"

#include "core/AlbumSets.h"
#include "platform/data/Statement.h"

#include <limits>

namespace {

constexpr int filesAtOnce = 200; // read in about a millisecond

} // namespace

PicturePaths::PicturePaths() : lastRow_(std::numeric_limits<qint64>::min()) {}

std::vector<PicturePaths::Entry> PicturePaths::ReadMore()
{
    Statement reading(
        GeneralModule::AlbumDatabase->GetEngine(),
        "SELECT rowid, File, SourceFile FROM Image WHERE rowid>?1 ORDER BY rowid LIMIT ?2");
    reading.Bind(1, lastRow_);
    reading.Bind(2, qint64(filesAtOnce));
    std::vector<Entry> entries;
    qint64 row = lastRow_; // an identifier of a stranger's album may be larger than those of ours
    while (reading.Step()) {
        row = reading.GetInteger(0);
        entries.push_back({qint32(row), QString::fromUtf8(reading.GetUtf8(1)),
                           QString::fromUtf8(reading.GetUtf8(2))});
    }
    lastRow_ = row;
    return entries;
}
