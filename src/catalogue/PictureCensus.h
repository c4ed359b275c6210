// SPDX-License-Identifier: MIT
#pragma once

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
    // Begins anew if the album is another one or has changed since, else goes on where it was.
    // Throws DatabaseError: NoAlbum while none is open, InUse at once where another program has it
    // locked.
    void Begin();
    // Counts until the deadline, of which one file may take longer. False when nothing is left to
    // count, or the album has changed since Begin. Throws as Begin; the next call goes on.
    bool WorkUntil(const QDeadlineTimer& deadline);

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
    struct Files
    {
        QString file;
        QString copy; // empty for none
    };

    void CountRows(const QDeadlineTimer& deadline);
    void CountMissing(const QDeadlineTimer& deadline);
    void ReadFiles();

    std::weak_ptr<Database> album_;
    GeneralModule::AlbumVersion version_;
    std::optional<Rows> rows_;
    std::optional<qint64> missing_;

    enum class Stage { Rows, Files, Done };
    Stage stage_ = Stage::Done;
    qint64 lastRow_ = 0; // all up to this one are counted or among the files below
    Rows rowsSoFar_;
    qint64 missingSoFar_ = 0;
    std::vector<Files> files_; // read, but not looked for yet
};
