// SPDX-License-Identifier: MIT
#include "viewer/LargePicture.h"

#include "viewer/StorySurface.h"

namespace {

constexpr qint64 maxPixels = (64LL << 20) / 4; // of four bytes
constexpr double largestPixel = 4;             // device pixels

} // namespace

// Halvings, because a decoder of photographs holds no more than that on the way.
QSize SizeToZoom(QSize pixels)
{
    while (qint64(pixels.width()) * pixels.height() > maxPixels)
        pixels /= 2;
    return pixels;
}

void LargePicture::Show(StorySurface& surface, const ShownPicture& picture)
{
    const ScreenShape shape = surface.GetShape(0);
    Forget();
    surface_ = &surface;
    picture_ = {picture.file, picture.path, PlaceOfSinglePicture(picture.path, shape)};
    fitted_ = ReadPictures(RequestsFor({picture_}, shape.pixelRatio)).front();
    surface.ShowFullSize(picture_, fitted_);
}

bool LargePicture::ReadPixels()
{
    if (!surface_ || !pixels_.isNull())
        return surface_;
    const auto work = surface_->BeginWork();
    const ScreenShape shape = surface_->GetShape(0);
    const QSize own = ReadPictureInfo(picture_.path).size;
    const QSize size = SizeToZoom(own);
    pixels_ = ReadPicture(picture_.path, size);
    if (pixels_.isNull())
        return false;
    const QSize band(shape.area.width(), int(shape.area.height() * shape.maxTotalHeight / 100));
    zoom_ = {size, picture_.place, band, shape.pixelRatio, size == own ? largestPixel : 1};
    return true;
}

void LargePicture::Step(int steps, QPointF at)
{
    const bool isWholeAlready = steps < 0 && pixels_.isNull();
    if (isWholeAlready || !ReadPixels())
        return;
    zoom_.Step(steps, at);
    Draw();
}

void LargePicture::Switch(QPointF at)
{
    if (!ReadPixels())
        return;
    zoom_.Switch(at);
    Draw();
}

void LargePicture::Move(QPointF by)
{
    if (pixels_.isNull())
        return;
    zoom_.Move(by);
    Draw();
}

void LargePicture::Draw()
{
    if (!zoom_.IsZoomed())
        return surface_->ShowFullSize(picture_, fitted_);
    const QRect visible = zoom_.GetVisible();
    const QRectF place = zoom_.GetPlace();
    const double scale = pixels_.width() / place.width();
    surface_->ShowFullSizePart(
        visible, pixels_,
        {(visible.topLeft() - place.topLeft()) * scale, QSizeF(visible.size()) * scale});
}
