// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/PictureScreen.h"
#include "viewer/PictureZoom.h"

#include <QImage>

class StorySurface;

// One picture of a screen alone on its surface, which the reader may zoom into. Its pixels are read
// when they are first wanted.
class LargePicture
{
public:
    void Show(StorySurface& surface, const ShownPicture& picture);
    // To be called when the surface shows others.
    void Forget() { *this = LargePicture(); }
    bool IsShown() const { return surface_ != nullptr; }

    // See PictureZoom. Nothing happens where no picture is alone, nor where it cannot be read.
    void Step(int steps, QPointF at);
    void Switch(QPointF at);
    void Move(QPointF by);
    QPointF GetMiddle() const { return QRectF(zoom_.GetVisible()).center(); }

private:
    bool ReadPixels();
    void Draw();

    StorySurface* surface_ = nullptr;
    ShownPicture picture_;
    QImage fitted_;
    QImage pixels_; // null as long as the picture is shown as a whole
    PictureZoom zoom_;
};

// The size, upright, in which a picture of that many pixels is held to be zoomed: its own, or so
// many halvings smaller that it takes no more than 64 MiB.
QSize SizeToZoom(QSize pixels);
