// SPDX-License-Identifier: MIT
#pragma once

#include "publish/PublishReport.h"
#include "publish/PublishedStory.h"

#include <QByteArray>
#include <QHash>
#include <QSize>

#include <atomic>

// A picture for web pages: JPEG files of several sizes, upright, in sRGB, and without anything else
// that the original file tells of place, time or camera.
struct WebPicture
{
    QString file;             // as the album knows it
    QString path;             // of the original
    QString name;             // of its files, without size and ending
    QString version;          // of the original: its path, length and time
    std::vector<QSize> sizes; // pixels, the smallest first; none when there is nothing to show
    bool isMissing = false;

    bool IsThere() const { return !sizes.empty(); }
    QString FileName(const QSize& size) const;
};

// Where the files of pictures go. Called from several threads at a time.
class WebPictureFiles
{
public:
    virtual ~WebPictureFiles() = default;
    // Whether an earlier run has made the file of this version of the picture.
    virtual bool Keeps(const QString& name, const QString& version) = 0;
    // Throws PublishError.
    virtual void Write(const QString& name, const QString& version, const QByteArray& bytes) = 0;
};

// The longest edges of a picture's files, in pixels, for the longest edge of the original and those
// that are wanted, both the smallest first: none larger than the original, and none nearly as large
// as the next.
std::vector<int> WebEdges(int original, const std::vector<int>& wanted);

// The pictures of a story, each once however many paragraphs show it.
class WebPictures
{
public:
    // edges: see WebEdges.
    WebPictures(const PublishedStory& story, std::vector<int> edges);

    const WebPicture& Of(const QString& file) const { return pictures_[numbers_.value(file)]; }

    // Makes the files that are not kept from an earlier run. A picture that cannot be decoded is no
    // longer there afterwards. False when it was stopped. Throws PublishError.
    bool MakeFiles(WebPictureFiles& files, const PublishProgress& progress);

    // What became of all pictures.
    void AddTo(PublishReport& report) const;

private:
    void LookAt(WebPicture& picture) const;
    void MakeFilesOf(WebPicture& picture, WebPictureFiles& files,
                     const std::function<bool()>& goesOn);

    std::vector<int> edges_;
    std::vector<WebPicture> pictures_;
    QHash<QString, std::size_t> numbers_; // by file
    std::atomic<int> made_ = 0;
};
