// SPDX-License-Identifier: MIT
#include "story/PictureWindows.h"

#include <utility>

namespace {

PictureWindows pictureWindows;

} // namespace

void FindPictures(const FindRequest& request)
{
    if (pictureWindows.find)
        pictureWindows.find(request);
}

void ShowLinkedPictures(QWidget* parent, qint32 paragraph)
{
    if (pictureWindows.showLinked)
        pictureWindows.showLinked(parent, paragraph);
}

void SetPictureWindows(PictureWindows windows)
{
    pictureWindows = std::move(windows);
}
