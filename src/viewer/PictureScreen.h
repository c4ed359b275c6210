// SPDX-License-Identifier: MIT
#pragma once

#include "core/PictureList.h"
#include "viewer/LineLayout.h"

#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

#include <vector>

using GeneralModule::PictureList;

// The screen that pictures are laid out for.
struct ScreenShape
{
    QSize area;               // logical pixels of the drawing area, 100 by 100 display units
    qreal pixelRatio = 1;     // device pixels to a logical one
    float maxTotalHeight = 0; // display units that pictures may take, from the top
    int lines = 1;            // 0 to 4
};

struct ShownPicture
{
    QString file; // as the album knows it
    QString path; // where it is read from
    QRect place;  // logical pixels
};

// The maximum number of pictures on a screen.
constexpr int maxPictures = 21;

// Takes as many pictures from the list as find room, at random or in list order, and returns where
// they stand, with each line centred. Reads only the files' headers. Pictures whose file is gone
// are dropped from the list; one that cannot be read keeps its place on the screen.
std::vector<ShownPicture> FillScreen(PictureList& list, const ScreenShape& shape, bool atRandom);

// The place of one picture that has the whole band to itself.
QRect PlaceOfSinglePicture(const QString& path, const ScreenShape& shape);

// The pictures decoded at their size on the screen, in the same order; null for an unreadable one.
std::vector<QImage> DecodePictures(const std::vector<ShownPicture>& pictures, qreal pixelRatio);

// A screen of pictures, ready to be shown.
struct Screenful
{
    PictureList rest; // what the list holds after it
    std::vector<ShownPicture> pictures;
    std::vector<QImage> images; // one for each of pictures, null for an unreadable one
};

Screenful PrepareScreen(PictureList list, const ScreenShape& shape, bool atRandom);
