// SPDX-License-Identifier: MIT
#include "gallery/ThumbnailSharing.h"

#include "platform/picture/SharedThumbnails.h"

#include <QFileInfo>

#include <utility>

void ThumbnailSharing::Add(const QString& path, qint64 modified, int side, const QImage& image)
{
    if (canWrite_ && side > 0)
        waiting_.push_back({QFileInfo(path).absoluteFilePath(), modified, side, image});
}

void ThumbnailSharing::WriteNext()
{
    const Thumbnail next = std::move(waiting_.front());
    waiting_.pop_front();
    canWrite_ = ShareThumbnail(next.path, next.modified, next.side, next.image);
    if (!canWrite_)
        Clear();
}
