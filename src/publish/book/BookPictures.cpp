// SPDX-License-Identifier: MIT
#include "publish/book/BookPictures.h"

#include "platform/picture/PictureReader.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

// Where the original cannot be passed through, no more than good printers show.
constexpr int bookPrintResolution = 300;

// An original that has little more than is wanted loses more by being made anew.
constexpr qreal toleratedExcess = 1.2;

constexpr qreal pointsPerInch = 72;
constexpr qreal mostEncodedPixels = 40e6; // below what the reader returns at most

} // namespace

int BookPictures::Find(const PublishedPicture& picture)
{
    const auto known = numbers_.constFind(picture.path);
    if (known != numbers_.constEnd())
        return *known;
    BookPicture added{.file = picture.file, .path = picture.path};
    added.size = ReadPictureInfo(picture.path).size;
    if (!added.size.isEmpty())
        added.jpeg = ReadJpegFacts(picture.path);
    else if (QFileInfo::exists(picture.path))
        added.state = BookPictureState::Damaged;
    else
        added.state = BookPictureState::Missing;
    pictures_.push_back(std::move(added));
    numbers_.insert(picture.path, Count() - 1);
    return Count() - 1;
}

int BookPictures::Use(const PublishedPicture& picture)
{
    const int number = Find(picture);
    ++At(number).uses;
    return number;
}

void BookPictures::Show(int picture, QSizeF size)
{
    At(picture).largest = At(picture).largest.expandedTo(size);
}

void BookPictures::Report(PublishReport& report) const
{
    for (const BookPicture& picture : pictures_) {
        if (picture.state == BookPictureState::Missing)
            report.missing += picture.file;
        else if (picture.state == BookPictureState::Damaged)
            report.damaged += picture.file;
        else
            ++report.pictures;
    }
    report.made = report.pictures;
}

BookEncoding EncodingOf(const BookPicture& picture, int resolution)
{
    const int wanted = resolution > 0 ? resolution : bookPrintResolution;
    const qreal pixels = picture.largest.width() / pointsPerInch * wanted;
    const bool isLarger = picture.size.width() > pixels * toleratedExcess;
    if (picture.jpeg && (resolution <= 0 || !isLarger))
        return {picture.jpeg->size, true};
    const qreal full = qreal(picture.size.width()) * picture.size.height();
    const qreal scale =
        std::min({1.0, pixels / picture.size.width(), std::sqrt(mostEncodedPixels / full)});
    const QSizeF size = QSizeF(picture.size) * scale;
    return {QSize(std::max(1, qRound(size.width())), std::max(1, qRound(size.height()))), false};
}
