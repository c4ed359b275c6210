// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/PictureScreen.h"

#include <memory>

// What a story is drawn on: a band of pictures with a text below it. The windows draw on StoryPage.
class StorySurface
{
public:
    virtual ~StorySurface() = default;

    virtual void SetTitle(const QString& title) = 0;

    // Divides the surface between pictures and text, for a text of about that length. Pictures on
    // show stay where they are until the screen is filled again.
    virtual void Arrange(const QString& text) = 0;
    // The screen as it is arranged now, for that many lines of pictures.
    virtual ScreenShape GetShape(int lines) const = 0;
    // The screen as Arrange(text) would leave it.
    virtual ScreenShape ShapeFor(const QString& text, int lines) const = 0;

    // images holds a picture for each entry of pictures, null for one that cannot be read.
    virtual void ShowPictures(const std::vector<ShownPicture>& pictures,
                              std::vector<QImage> images) = 0;
    // The pictures on show fade away over the next ones, if they come before the result is
    // released.
    [[nodiscard]] virtual std::shared_ptr<void> FadeIntoNext() = 0;
    // One picture alone, the others hidden; and back again.
    virtual void ShowFullSize(const ShownPicture& picture, const QImage& image) = 0;
    // Of the picture that is shown alone only that part, in pixels of the image, at that place.
    virtual void ShowFullSizePart(const QRect& place, const QImage& image, const QRectF& part) = 0;
    virtual void LeaveFullSize() = 0;

    // Says in the middle of the band why there are no pictures; empty says nothing.
    virtual void SetNotice(const QString& text) = 0;

    // Where the reader is, said quietly beside pictures and text.
    virtual void SetPlace(const QString& text) = 0;

    virtual void SetLegend(const QString& text) = 0;
    // As SetLegend, on the screen at once: for the middle of long work.
    virtual void ShowFeedback(const QString& text) = 0;
    virtual void SetLegendAlignment(Qt::Alignment alignment) = 0;

    virtual void SetPictureToolTip(const QString& text) = 0;
    // Whether Tab leads to the pictures.
    virtual void LetPicturesTakeFocus(bool mayTake) = 0;

    // Tells the user that work is going on, until the result is released.
    [[nodiscard]] virtual std::shared_ptr<void> BeginWork() = 0;
};
