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

// They return when the user has left the window, and do nothing while there is none.
void FindPictures(const FindRequest& request);
// Of a paragraph: shows the linked pictures, to be put in order or taken out.
void ShowLinkedPictures(QWidget* parent, qint32 paragraph);

struct PictureWindows
{
    std::function<void(const FindRequest&)> find;
    std::function<void(QWidget* parent, qint32 paragraph)> showLinked;
};

// To be called once, by the program that has the windows.
void SetPictureWindows(PictureWindows windows);
