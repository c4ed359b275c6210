// SPDX-License-Identifier: MIT
#pragma once

#include "core/LocalCopy.h"
#include "core/PictureList.h"
#include "platform/picture/PictureReader.h"
#include "viewer/LineLayout.h"

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

constexpr int maxPictures = 21; // on a screen
constexpr int maxLines = 4;

// Takes as many pictures from the list as find room, at random or in list order, and returns where
// they stand, with each line centred. Reads only the files' headers. Pictures whose file is gone
// are dropped from the list; one that cannot be read keeps its place on the screen. pathOf tells
// where an album's picture is read from.
using PathOfPicture = QString (*)(const QString& file);
std::vector<ShownPicture> FillScreen(PictureList& list, const ScreenShape& shape, bool atRandom,
                                     PathOfPicture pathOf = GeneralModule::ResolvePictureFile);

// The place of one picture that has the whole band to itself.
QRect PlaceOfSinglePicture(const QString& path, const ScreenShape& shape);

QStringList FilesOf(const std::vector<ShownPicture>& pictures);

// What to decode for them: each at its size on the screen, in the same order.
std::vector<PictureRequest> RequestsFor(const std::vector<ShownPicture>& pictures,
                                        qreal pixelRatio);
