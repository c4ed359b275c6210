// SPDX-License-Identifier: MIT
#include "platform/picture/PictureReader.h"

PictureInfo ReadPictureInfo(const QString&)
{
    return {};
}

QImage ReadPicture(const QString&, QSize)
{
    return {};
}

std::vector<QImage> ReadPictures(const std::vector<PictureRequest>& requests)
{
    return std::vector<QImage>(requests.size());
}
