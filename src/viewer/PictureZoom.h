// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>

// Where a picture stands that has a band to itself: as a whole, or zoomed and cut off at the band's
// edges. Places are in logical pixels, from the band's upper left corner.
class PictureZoom
{
public:
    PictureZoom() = default;
    // Of so many pixels, as a whole at fitted, with that many device pixels to a logical one. It
    // may be enlarged until one of its pixels is so many device pixels wide.
    PictureZoom(QSize pixels, const QRect& fitted, QSize band, qreal pixelRatio, double largest);

    // Larger or smaller by about half for each step. What is at the point stays there, as far as
    // the picture fills the band.
    void Step(int steps, QPointF at);
    // From the whole picture to its pixels, one for each of the device, and back.
    void Switch(QPointF at);
    void Move(QPointF by);

    bool IsZoomed() const { return scale_ > fittedScale_; }
    // Of the whole picture, which may be larger than the band.
    QRectF GetPlace() const { return place_; }
    // Of what is seen of it.
    QRect GetVisible() const;

private:
    void SetScale(double scale, QPointF at);
    void KeepInBand();

    QSizeF pixels_;
    QRectF fitted_;
    QSizeF band_;
    QRectF place_;
    double pixelScale_ = 1; // logical pixels to one of the picture that is one of the device
    double largestScale_ = 1;
    double fittedScale_ = 1;
    double scale_ = 1; // logical pixels to one of the picture
};
