// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

#include <deque>

// Thumbnails that wait to be written to the desktop's store, one at a time. Where it cannot be
// written no more is tried.
class ThumbnailSharing
{
public:
    // Modified is the file's time in seconds since 1970, and side what the thumbnail was made for.
    void Add(const QString& path, qint64 modified, int side, const QImage& image);
    void WriteNext();
    void Clear() { waiting_.clear(); }

    bool IsEmpty() const { return waiting_.empty(); }
    // Their memory has an end: some must be written before there are more.
    bool IsFull() const { return waiting_.size() >= maxWaiting; }

private:
    struct Thumbnail
    {
        QString path;
        qint64 modified;
        int side;
        QImage image;
    };

    static constexpr std::size_t maxWaiting = 16;

    std::deque<Thumbnail> waiting_;
    bool canWrite_ = true;
};
