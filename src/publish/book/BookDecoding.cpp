// SPDX-License-Identifier: MIT
#include "publish/book/BookDecoding.h"

#include "platform/picture/OpenPicture.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QPainter>
#include <QThread>
#include <QTransform>

#include <algorithm>

namespace {

constexpr int bookJpegQuality = 90;
constexpr QRgb unreadableColour = 0xffe2e1e0; // not quite gray, for the file to have three colours

// Takes no more once its user has been stopped.
class StoppableBuffer : public QBuffer
{
public:
    explicit StoppableBuffer(const std::atomic<bool>& isStopped) : isStopped_(isStopped)
    {
        open(WriteOnly);
    }

protected:
    qint64 writeData(const char* data, qint64 bytes) override
    {
        return isStopped_ ? -1 : QBuffer::writeData(data, bytes);
    }

private:
    const std::atomic<bool>& isStopped_;
};

QByteArray WriteBookJpeg(QImage image, const std::atomic<bool>& isStopped)
{
    image.setColorSpace({}); // the book says which it is
    StoppableBuffer buffer(isStopped);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(bookJpegQuality);
    writer.setOptimizedWrite(true);
    return writer.write(image) ? buffer.data() : QByteArray();
}

// Never gray: three colours even where all pixels are.
QImage OnWhite(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_RGB32);
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

// The pixels as the file holds them, though the reader has turned them and converted their colours.
QImage AsInFile(const QImage& upright, const JpegFacts& facts)
{
    QImage image = upright;
    if (facts.turn & QImageIOHandler::TransformationRotate90)
        image = image.transformed(QTransform().rotate(-90));
    image = image.mirrored(facts.turn & QImageIOHandler::TransformationMirror,
                           facts.turn & QImageIOHandler::TransformationFlip);
    image = OnWhite(image);
    if (facts.components == 1)
        return image.convertToFormat(QImage::Format_Grayscale8);
    if (!facts.profile.isEmpty()) {
        image.setColorSpace(QColorSpace::SRgb);
        image.convertToColorSpace(QColorSpace::fromIccProfile(facts.profile));
    }
    return image;
}

QImage Unreadable(QSize size, int components)
{
    QImage image(size, components == 1 ? QImage::Format_Grayscale8 : QImage::Format_Indexed8);
    if (components == 1) {
        image.fill(qGray(unreadableColour));
    } else {
        image.setColorTable({unreadableColour});
        image.fill(0);
    }
    return image;
}

QImage ReadBookPicture(const QString& path, QSize size, const std::atomic<bool>& isStopped)
{
    try {
        OpenPicture file(path, [&isStopped] { return !isStopped; });
        return file.Read(size);
    } catch (const std::exception&) { // out of memory: as good as damaged
        return {};
    }
}

} // namespace

BookDecoding::BookDecoding(const BookPictures& pictures, const std::vector<int>& order,
                           int resolution, BookProgress& progress)
    : pictures_(pictures), progress_(progress)
{
    for (const int picture : order) {
        const BookEncoding encoding = EncodingOf(pictures.At(picture), resolution);
        encodings_.emplace(picture, encoding);
        if (encoding.isPassed)
            continue;
        places_.emplace(picture, order_.size());
        order_.push_back(picture);
    }
}

BookDecoding::~BookDecoding()
{
    isStopped_ = true; // the futures wait for their threads
}

BookDecoding::Result BookDecoding::Take(int picture)
{
    if (encodings_.at(picture).isPassed)
        Start(picture);
    else
        StartAhead(places_.at(picture));
    std::future<Result>& result = started_.at(picture);
    constexpr std::chrono::milliseconds interval(20);
    while (result.wait_for(interval) != std::future_status::ready)
        progress_.Check();
    Result made = result.get();
    started_.erase(picture);
    return made;
}

void BookDecoding::Start(int picture)
{
    if (!started_.contains(picture))
        started_[picture] =
            std::async(std::launch::async, [this, picture] { return Make(picture); });
}

void BookDecoding::StartAhead(std::size_t place)
{
    const std::size_t end =
        std::min(order_.size(), place + std::size_t(std::max(QThread::idealThreadCount(), 1)));
    for (; place < end; ++place)
        Start(order_[place]);
}

BookDecoding::Result BookDecoding::Make(int picture) const
{
    const BookPicture& from = pictures_.At(picture);
    const BookEncoding& encoding = encodings_.at(picture);
    const bool isTurned =
        encoding.isPassed && (from.jpeg->turn & QImageIOHandler::TransformationRotate90);
    const QSize upright = isTurned ? encoding.size.transposed() : encoding.size;
    QImage image = ReadBookPicture(from.path, upright, isStopped_);
    const bool isDamaged = image.isNull();
    if (isDamaged)
        image = Unreadable(encoding.size, encoding.isPassed ? from.jpeg->components : 3);
    else
        image = encoding.isPassed ? AsInFile(image, *from.jpeg) : OnWhite(image);
    return {WriteBookJpeg(std::move(image), isStopped_), isDamaged};
}
