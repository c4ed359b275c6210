// SPDX-License-Identifier: MIT
#pragma once

#include "story/PictureQuery.h"

#include <functional>

class QWidget;

// What a window asks of the one that finds pictures, which lies on a higher floor.
struct FindRequest
{
    QWidget* parent = nullptr; // the window it opens in front of
    CarValues values = AnyValues();
    qint32 paragraph = 0; // that pictures may be linked to; 0: none
};

// Returns when the user has left the window. Does nothing while there is no finder.
void FindPictures(const FindRequest& request);
bool HasPictureFinder();

// To be called once, by the program that has the window.
void SetPictureFinder(std::function<void(const FindRequest&)> finder);
