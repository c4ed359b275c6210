// SPDX-License-Identifier: MIT
#include "viewer/PictureScreen.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

// Stands in for a picture whose size cannot be told; logical pixels.
constexpr QSize unreadableSize(320, 240);

// A picture pixel is one device pixel, so that a small picture is shown sharp.
UnitSize NaturalSize(const QString& path, const ScreenShape& shape)
{
    const PictureInfo info = ReadPictureInfo(path);
    const QSizeF size =
        info.IsReadable() ? QSizeF(info.size) / shape.pixelRatio : QSizeF(unreadableSize);
    return {float(size.width() / shape.area.width() * 100),
            float(size.height() / shape.area.height() * 100)};
}

// Edges are rounded, not sizes, so that pictures which touch in units touch in pixels. A centred
// line often has its edges on half pixels, which rounding errors would send either way, so that a
// picture shown pixel by pixel might be stretched by one. The nudge is larger than those errors.
QRect ToPixels(const UnitRect& place, QSize area)
{
    constexpr double nudge = 1.0 / 64; // pixels
    const auto across = [&](float units) {
        return int(std::lround(double(units) * area.width() / 100 + nudge));
    };
    const auto down = [&](float units) {
        return int(std::lround(double(units) * area.height() / 100 + nudge));
    };
    const int left = across(place.left);
    const int top = down(place.top);
    return {left, top, std::max(1, across(place.left + place.width) - left),
            std::max(1, down(place.top + place.height) - top)};
}

} // namespace

std::vector<ShownPicture> FillScreen(PictureList& list, const ScreenShape& shape, bool atRandom,
                                     PathOfPicture pathOf)
{
    std::vector<ShownPicture> pictures;
    std::vector<UnitRect> places;
    LineLayout layout(shape.lines, shape.maxTotalHeight);
    QString path;
    const auto isThere = [&path, pathOf](const QString& file) {
        path = pathOf(file);
        return QFileInfo::exists(path);
    };
    while (places.size() < maxPictures) {
        const QString file = list.PickNext(atRandom, isThere);
        if (file.isEmpty())
            break;
        const std::optional<UnitRect> place = layout.Place(NaturalSize(path, shape));
        if (!place)
            break;
        list.TakePicked();
        places.push_back(*place);
        pictures.push_back({file, path, {}});
    }
    CentreLines(places);
    for (std::size_t i = 0; i < places.size(); ++i)
        pictures[i].place = ToPixels(places[i], shape.area);
    return pictures;
}

QRect PlaceOfSinglePicture(const QString& path, const ScreenShape& shape)
{
    LineLayout layout(0, shape.maxTotalHeight);
    return ToPixels(*layout.Place(NaturalSize(path, shape)), shape.area);
}

QStringList FilesOf(const std::vector<ShownPicture>& pictures)
{
    QStringList files;
    for (const ShownPicture& picture : pictures)
        files += picture.file;
    return files;
}

std::vector<PictureRequest> RequestsFor(const std::vector<ShownPicture>& pictures, qreal pixelRatio)
{
    std::vector<PictureRequest> requests;
    requests.reserve(pictures.size());
    for (const ShownPicture& picture : pictures)
        requests.push_back({picture.path, (QSizeF(picture.place.size()) * pixelRatio).toSize()});
    return requests;
}
