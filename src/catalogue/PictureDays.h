// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QtGlobal>

#include <chrono>
#include <memory>
#include <vector>

class MetadataReader;

// The days on which pictures of the open album were taken, as their files say; of a file that does
// not say so, the day on which it was last changed. Files are read in slices.
class PictureDays
{
public:
    explicit PictureDays(std::vector<qint32> pictures);
    ~PictureDays();
    Q_DISABLE_COPY_MOVE(PictureDays)

    int GetCount() const { return int(pictures_.size()); }
    int GetRead() const { return int(days_.size()); }

    // Reads for about that time; false when all are read. Throws DatabaseError.
    bool Work(std::chrono::milliseconds time);

    // Not valid when it is not known.
    QDate DayOf(qint32 picture) const;
    // Those read so far that were taken on the same day as that one, with itself, in their order;
    // none when its day is not known.
    std::vector<qint32> OfDayOf(qint32 picture) const;

private:
    std::vector<qint32> pictures_;
    std::vector<QDate> days_; // not valid: not known
    std::unique_ptr<MetadataReader> reader_;
};
