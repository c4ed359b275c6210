// SPDX-License-Identifier: MIT
#include "catalogue/PictureCensus.h"

#include "catalogue/PictureCards.h"
#include "core/AlbumSets.h"
#include "core/LocalCopy.h"
#include "platform/data/Statement.h"

#include <limits>

using namespace GeneralModule;

namespace {

// Read in about a millisecond.
constexpr int rowsAtOnce = 1000;

Statement After(qint64 row, int count, const QString& sql)
{
    Statement statement(AlbumDatabase->GetEngine(), sql.toUtf8());
    statement.Bind(1, row);
    statement.Bind(2, qint64(count));
    return statement;
}

} // namespace

void PictureCensus::ForgetOtherAlbum()
{
    const std::shared_ptr<Database> album = AlbumDatabase;
    if (album_.lock() == album)
        return;
    rows_.reset();
    missing_.reset();
    album_ = album;
    stage_ = Stage::Unknown;
}

void PictureCensus::BeginIfChanged()
{
    ForgetOtherAlbum();
    const AlbumVersion version = GetAlbumVersion();
    if (stage_ != Stage::Unknown && version == version_)
        return;
    version_ = version;
    stage_ = Stage::Rows;
    lastRow_ = std::numeric_limits<qint64>::min();
    rowsSoFar_ = {};
    missingSoFar_ = 0;
    files_.clear();
}

bool PictureCensus::WorkUntil(const QDeadlineTimer& deadline)
{
    const NoWaiting atOnce;
    BeginIfChanged();
    do {
        if (stage_ == Stage::Rows)
            CountRows(deadline);
        else if (stage_ == Stage::Files)
            CountMissing(deadline);
    } while (stage_ != Stage::Done && !deadline.hasExpired());
    return stage_ != Stage::Done;
}

// One statement for so many rows, as it costs more to return them than to count them.
void PictureCensus::CountRows(const QDeadlineTimer& deadline)
{
    static const QString sql =
        QStringLiteral("SELECT COUNT(*), TOTAL(isNew), MAX(row) FROM (SELECT rowid AS row, (%1) AS "
                       "isNew FROM Image WHERE rowid>?1 ORDER BY rowid LIMIT ?2)")
            .arg(NotIndexedCondition());
    do {
        Statement counting = After(lastRow_, rowsAtOnce, sql);
        counting.Step();
        const qint64 count = counting.GetInteger(0);
        if (count == 0) {
            rows_ = rowsSoFar_;
            stage_ = Stage::Files;
            paths_ = {};
            return;
        }
        rowsSoFar_.pictures += count;
        rowsSoFar_.notIndexed += counting.GetInteger(1);
        lastRow_ = counting.GetInteger(2);
    } while (!deadline.hasExpired());
}

void PictureCensus::CountMissing(const QDeadlineTimer& deadline)
{
    do {
        if (files_.empty())
            files_ = paths_.ReadMore();
        if (files_.empty()) {
            missing_ = missingSoFar_;
            stage_ = Stage::Done;
            return;
        }
        const PicturePaths::Entry files = std::move(files_.back());
        files_.pop_back();
        missingSoFar_ += IsPictureThere(files.file, files.copy) ? 0 : 1;
    } while (!deadline.hasExpired());
}
