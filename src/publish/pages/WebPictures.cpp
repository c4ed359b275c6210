// SPDX-License-Identifier: MIT
#include "publish/pages/WebPictures.h"

#include "platform/files/PathRoutines.h"
#include "platform/picture/OpenPicture.h"
#include "platform/picture/PictureReader.h"
#include "publish/ParallelWork.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int webQuality = 85;        // of JPEG; 4:2:0, a mean SSIM of 0.95 at 1600 pixels
constexpr double nearlyAsLarge = 0.8; // a file of such a part of the next size is not worth making
constexpr qsizetype longestStem = 40;

// What is left of a file's name in the address of its pictures: letters and digits that need no
// escaping anywhere.
QString StemOf(const QString& file)
{
    QString stem;
    const QString name = QFileInfo(FileNameOf(file)).completeBaseName();
    for (const QChar each : name.normalized(QString::NormalizationForm_KD).toLower()) {
        const bool isPlain = (each >= u'a' && each <= u'z') || (each >= u'0' && each <= u'9');
        if (isPlain)
            stem += each;
        else if (!each.isMark() && !stem.isEmpty() && !stem.endsWith(u'-'))
            stem += u'-';
    }
    stem.truncate(longestStem);
    while (stem.endsWith(u'-'))
        stem.chop(1);
    return stem.isEmpty() ? QStringLiteral("picture") : stem;
}

QSize WithLongestEdge(const QSize& size, int edge)
{
    return std::max(size.width(), size.height()) <= edge
               ? size
               : size.scaled(edge, edge, Qt::KeepAspectRatio).expandedTo({1, 1});
}

// Nothing but pixels: an image carries texts of its file along, which the writer would store as
// comments, and a profile that says no more than that it is sRGB.
QImage PixelsOf(const QImage& image)
{
    if (!image.hasAlphaChannel() && image.format() == QImage::Format_RGB32)
        return {image.constBits(), image.width(), image.height(), image.bytesPerLine(),
                QImage::Format_RGB32};
    QImage pixels(image.size(), QImage::Format_RGB32);
    pixels.fill(Qt::white);
    QPainter(&pixels).drawImage(0, 0, image);
    return pixels;
}

QByteArray EncodeForWeb(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(webQuality);
    writer.setOptimizedWrite(true);
    return writer.write(PixelsOf(image)) ? buffer.data() : QByteArray();
}

} // namespace

QString WebPicture::FileName(const QSize& size) const
{
    return QStringLiteral("%1-%2.jpg").arg(name).arg(std::max(size.width(), size.height()));
}

std::vector<int> WebEdges(int original, const std::vector<int>& wanted)
{
    std::vector<int> edges;
    for (const int each : wanted) {
        const int edge = std::clamp(each, 1, original);
        if (!edges.empty() && edges.back() > nearlyAsLarge * edge)
            edges.back() = edge;
        else
            edges.push_back(edge);
    }
    return edges;
}

WebPictures::WebPictures(const PublishedStory& story, std::vector<int> edges)
    : edges_(std::move(edges))
{
    for (const PublishedChapter& chapter : story.chapters) {
        for (const PublishedParagraph& paragraph : chapter.paragraphs) {
            for (const PublishedPicture& picture : paragraph.pictures) {
                if (numbers_.contains(picture.file))
                    continue;
                numbers_.insert(picture.file, pictures_.size());
                pictures_.push_back({picture.file, picture.path, {}, {}, {}, false});
            }
        }
    }
}

void WebPictures::LookAt(WebPicture& picture) const
{
    const QFileInfo info(picture.path);
    picture.isMissing = !info.isFile();
    if (picture.isMissing)
        return;
    const QByteArray hash =
        QCryptographicHash::hash(picture.file.toUtf8(), QCryptographicHash::Sha1).toHex();
    picture.name = QStringLiteral("pictures/%1-%2")
                       .arg(StemOf(picture.file), QString::fromLatin1(hash.first(8)));
    picture.version = QStringLiteral("%1 %2 %3")
                          .arg(info.size())
                          .arg(info.lastModified().toMSecsSinceEpoch())
                          .arg(picture.path);
    const QSize size = ReadPictureInfo(picture.path).size;
    if (size.isEmpty())
        return;
    for (const int edge : WebEdges(std::max(size.width(), size.height()), edges_))
        picture.sizes.push_back(WithLongestEdge(size, edge));
}

bool WebPictures::MakeFiles(WebPictureFiles& files, const PublishProgress& progress)
{
    return WorkInParallel(int(pictures_.size()), progress,
                          [&](int number, const std::function<bool()>& goesOn) {
                              MakeFilesOf(pictures_[std::size_t(number)], files, goesOn);
                          });
}

void WebPictures::MakeFilesOf(WebPicture& picture, WebPictureFiles& files,
                              const std::function<bool()>& goesOn)
{
    LookAt(picture);
    bool isKept = true;
    for (const QSize& size : picture.sizes)
        isKept = files.Keeps(picture.FileName(size), picture.version) && isKept;
    if (isKept)
        return;
    QImage image = OpenPicture(picture.path, goesOn).Read(picture.sizes.back());
    if (!goesOn())
        return;
    if (image.isNull()) {
        picture.sizes.clear();
        return;
    }
    // From the largest down, each made of the one before.
    for (auto size = picture.sizes.rbegin(); size != picture.sizes.rend() && goesOn(); ++size) {
        if (image.size() != *size)
            image = image.scaled(*size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        files.Write(picture.FileName(*size), picture.version, EncodeForWeb(image));
    }
    ++made_;
}

void WebPictures::AddTo(PublishReport& report) const
{
    for (const WebPicture& picture : pictures_) {
        if (picture.IsThere())
            ++report.pictures;
        else
            (picture.isMissing ? report.missing : report.damaged) += picture.file;
    }
    report.made += made_;
}
