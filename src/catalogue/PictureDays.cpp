// SPDX-License-Identifier: MIT
#include "catalogue/PictureDays.h"

#include "catalogue/PictureCards.h"
#include "core/LocalCopy.h"
#include "platform/metadata/MetadataReader.h"

#include <algorithm>

namespace {

QString PathOfPicture(qint32 picture)
{
    return GeneralModule::FindPictureFile(ReadPictureCards({&picture, 1}).front().file);
}

// The first date that tells a whole day.
QDate DayIn(const FileMetadata& metadata)
{
    const auto whole = std::ranges::find_if(
        metadata.dates, [](const FieldDate& each) { return each.date.day != 0; });
    if (whole == metadata.dates.end())
        return {};
    return {whole->date.year, whole->date.month, whole->date.day};
}

} // namespace

PictureDays::PictureDays(std::vector<qint32> pictures)
    : pictures_(std::move(pictures)),
      reader_(std::make_unique<MetadataReader>(
          GetCount(), [this](int number) { return PathOfPicture(pictures_[std::size_t(number)]); }))
{
}

PictureDays::~PictureDays() = default;

bool PictureDays::Work(std::chrono::milliseconds time)
{
    return reader_->Work(
        time, [this](int, const FileMetadata& metadata) { days_.push_back(DayIn(metadata)); });
}

QDate PictureDays::DayOf(qint32 picture) const
{
    const auto at = std::size_t(std::ranges::find(pictures_, picture) - pictures_.begin());
    return at < days_.size() ? days_[at] : QDate();
}

std::vector<qint32> PictureDays::OfDayOf(qint32 picture) const
{
    const QDate day = DayOf(picture);
    std::vector<qint32> alike;
    for (std::size_t i = 0; day.isValid() && i < days_.size(); ++i) {
        if (days_[i] == day)
            alike.push_back(pictures_[i]);
    }
    return alike;
}
