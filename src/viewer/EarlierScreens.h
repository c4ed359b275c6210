// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/PictureScreen.h"

#include <QList>

// The screens of pictures that a page showed before the one on show, so that a reader can go back
// to them. Copies are cheap.
class EarlierScreens
{
public:
    // Of the screen that others now take the place of; one without pictures is left out.
    void Add(const QStringList& files);
    bool IsEmpty() const { return screens_.isEmpty(); }
    int CountPictures() const { return pictures_; }
    // Forgets pictures that are no longer in the album; returns how many there were.
    int Remove(const QStringList& files);

    // The last one once more, with the list as it is to be after it; must not be empty. For the
    // same shape and files the screen is the same. Where its pictures do not all find room any
    // more, as after a zoom, those that come last are shown and the others stay an earlier screen;
    // where there is more room, pictures of the list follow. See FillScreen.
    std::vector<ShownPicture>
    FillWithLast(PictureList& list, const ScreenShape& shape, bool atRandom,
                 PathOfPicture pathOf = GeneralModule::ResolvePictureFile);

private:
    QList<QStringList> screens_;
    int pictures_ = 0;
};
