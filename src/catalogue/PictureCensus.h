// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/PicturePaths.h"
#include "core/Album.h"

#include <QDeadlineTimer>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

// Counts the pictures of the open album in slices: how many there are, how many of them are not
// indexed, and the files of how many are missing. A million take a second, their files some more.
class PictureCensus
{
public:
    // Counts until the deadline, of which one file may take longer; from the first picture if the
    // album has changed since. False when nothing is left to count. Throws DatabaseError: NoAlbum
    // while none is open, InUse at once where another program has it locked; the next call goes on.
    bool WorkUntil(const QDeadlineTimer& deadline);

    // Drops the counts of another album than the open one. Throws NoAlbum while none is open.
    void ForgetOtherAlbum();

    struct Rows
    {
        qint64 pictures = 0;
        qint64 notIndexed = 0; // without a value in any characteristic
    };
    // None as long as not all are counted. After a change of the album the former ones stay until
    // then.
    const std::optional<Rows>& GetRows() const { return rows_; }
    std::optional<qint64> GetMissing() const { return missing_; }

private:
    void BeginIfChanged();
    void CountRows(const QDeadlineTimer& deadline);
    void CountMissing(const QDeadlineTimer& deadline);

    std::weak_ptr<Database> album_;
    GeneralModule::AlbumVersion version_;
    std::optional<Rows> rows_;
    std::optional<qint64> missing_;

    enum class Stage { Unknown, Rows, Files, Done };
    Stage stage_ = Stage::Unknown;
    qint64 lastRow_ = 0; // all up to this one are counted
    Rows rowsSoFar_;
    qint64 missingSoFar_ = 0;
    PicturePaths paths_;
    std::vector<PicturePaths::Entry> files_; // read, but not looked for yet
};
