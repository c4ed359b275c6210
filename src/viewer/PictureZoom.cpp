// SPDX-License-Identifier: MIT
#include "viewer/PictureZoom.h"

#include <algorithm>
#include <cmath>
#include <numbers>

PictureZoom::PictureZoom(QSize pixels, const QRect& fitted, QSize band, qreal pixelRatio,
                         double largest)
    : pixels_(pixels),
      fitted_(fitted),
      band_(band),
      place_(fitted),
      pixelScale_(1 / pixelRatio),
      largestScale_(largest / pixelRatio),
      fittedScale_(fitted.width() / std::max(1.0, pixels_.width())),
      scale_(fittedScale_)
{
}

// The way to larger ones and back stops at the pixels.
void PictureZoom::Step(int steps, QPointF at)
{
    const double wanted = scale_ * std::pow(std::numbers::sqrt2, steps);
    constexpr double tolerance = 1e-6;
    const bool passesPixels = (scale_ < pixelScale_ - tolerance && wanted > pixelScale_) ||
                              (scale_ > pixelScale_ + tolerance && wanted < pixelScale_);
    SetScale(passesPixels ? pixelScale_ : wanted, at);
}

void PictureZoom::Switch(QPointF at)
{
    SetScale(IsZoomed() ? fittedScale_ : pixelScale_, at);
}

void PictureZoom::SetScale(double scale, QPointF at)
{
    const QPointF inPicture = (at - place_.topLeft()) / scale_;
    scale_ = std::clamp(scale, fittedScale_, std::max(fittedScale_, largestScale_));
    if (!IsZoomed()) {
        place_ = fitted_;
        return;
    }
    place_ = {at - inPicture * scale_, pixels_ * scale_};
    KeepInBand();
}

void PictureZoom::Move(QPointF by)
{
    if (!IsZoomed())
        return;
    place_.translate(by);
    KeepInBand();
}

// On whole pixels, so that what is shown pixel by pixel stays sharp.
void PictureZoom::KeepInBand()
{
    const auto keep = [](double at, double size, double room) {
        const double free = room - size;
        return std::round(free >= 0 ? free / 2 : std::clamp(at, free, 0.0));
    };
    place_.moveTo(keep(place_.x(), place_.width(), band_.width()),
                  keep(place_.y(), place_.height(), band_.height()));
}

QRect PictureZoom::GetVisible() const
{
    return place_.intersected(QRectF({}, band_)).toAlignedRect();
}
