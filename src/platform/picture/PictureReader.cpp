// SPDX-License-Identifier: MIT
#include "platform/picture/PictureReader.h"

#include "platform/picture/PictureFile.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QImageReader>
#include <QThread>
#include <QThreadPool>
#include <QTransform>

#include <algorithm>
#include <atomic>
#include <exception>
#include <limits>
#include <mutex>

namespace {

// Megabytes for one picture that cannot be decoded by line: 128 megapixels. The decoders' own limit
// of 128 refuses scans and stitched pictures that fit well into memory.
constexpr int mostMegabytesWhole = 512;

// A picture above this many pixels that is held whole is decoded while no other such picture is, so
// that the memory does not grow with the number of cores.
constexpr qint64 largeWhole = 32LL << 20;

// Larger than any screen; guards the allocation only.
constexpr int mostTargetSide = 1 << 15;
constexpr qint64 mostTargetPixels = 128LL << 20;

// No photograph comes near; what lies above it would be read into memory for nothing.
constexpr qint64 mostJpegBytes = 1LL << 30;

// To a format that needs no conversion at each paint.
void ConvertToDraw(QImage& image)
{
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
}

void ConvertToScreenColours(QImage& image)
{
    const QColorSpace profile = image.colorSpace();
    if (profile.isValid() && profile != QColorSpace(QColorSpace::SRgb)) {
        image.convertToColorSpace(QColorSpace::SRgb);
        ConvertToDraw(image);
    }
}

// Done after the colours: the reader's own turn loses the profile.
void Turn(QImage& image, QImageIOHandler::Transformations turn)
{
    const bool mirror = turn.testFlag(QImageIOHandler::TransformationMirror);
    const bool flip = turn.testFlag(QImageIOHandler::TransformationFlip);
    if (mirror || flip) {
        image = std::move(image).mirrored(mirror, flip);
    }
    if (turn.testFlag(QImageIOHandler::TransformationRotate90)) {
        image = image.transformed(QTransform().rotate(90));
    }
}

// A file's decoder on its way to pixels. Not to be copied or moved: the reader points to the
// device.
class OpenPicture
{
public:
    explicit OpenPicture(const QString& path)
    {
        if (!OpenPictureFile(file_, path)) {
            return;
        }
        const QByteArray format = PictureFormatOf(file_);
        if (format.isEmpty()) {
            return;
        }
        reader_.setAutoDetectImageFormat(false);
        reader_.setFormat(format);
        reader_.setDevice(&file_);
    }
    Q_DISABLE_COPY_MOVE(OpenPicture)

    // Upright; empty when the file cannot be read.
    QSize Size()
    {
        const QSize size = HeaderSize();
        if (!IsPlausibleSize(reader_.format(), size, file_.size())) {
            return {};
        }
        return IsTurned() ? size.transposed() : size;
    }

    QImage Read(QSize target)
    {
        if (IsJpeg() && !LoadIntoMemory()) {
            return {};
        }
        std::unique_lock<std::mutex> alone(LargeMutex(), std::defer_lock);
        if (IsLargeWhole()) {
            alone.lock();
        }
        // Counts before the turn. Decoders that cannot scale give all pixels, which are then scaled
        // smoothly.
        reader_.setScaledSize(IsTurned() ? target.transposed() : target);
        QImage image = reader_.read();
        if (!image.isNull()) {
            ConvertToDraw(image);
            ConvertToScreenColours(image);
            Turn(image, reader_.transformation());
        }
        return image;
    }

private:
    QSize HeaderSize()
    {
        if (reader_.format().isEmpty()) {
            return {};
        }
        const QSize size = reader_.size();
        // A bitmap stored from the top down tells a negative height.
        if (size.height() == std::numeric_limits<int>::min()) {
            return {};
        }
        return {size.width(), qAbs(size.height())};
    }

    bool IsJpeg() const { return reader_.format() == "jpeg"; }

    bool IsTurned() const
    {
        return (reader_.transformation() & QImageIOHandler::TransformationRotate90) != 0;
    }

    bool IsLargeWhole()
    {
        const QSize size = HeaderSize();
        return qint64(size.width()) * size.height() > largeWhole &&
               (!IsJpeg() || JpegNeedsWholePicture(bytes_));
    }

    // From memory the JPEG decoder is about a tenth faster: from a file it asks for 4 KiB at a
    // time.
    bool LoadIntoMemory()
    {
        file_.seek(0);
        if (file_.size() > mostJpegBytes) {
            return false;
        }
        bytes_ = file_.readAll();
        buffer_.setBuffer(&bytes_);
        buffer_.open(QIODevice::ReadOnly);
        const QByteArray format = reader_.format();
        reader_.setDevice(&buffer_);
        reader_.setFormat(format);
        return true;
    }

    static std::mutex& LargeMutex()
    {
        static std::mutex mutex;
        return mutex;
    }

    QFile file_;
    QByteArray bytes_;
    QBuffer buffer_;
    QImageReader reader_;
};

bool IsPlausibleTarget(QSize size)
{
    return !size.isEmpty() && size.width() <= mostTargetSide && size.height() <= mostTargetSide &&
           qint64(size.width()) * size.height() <= mostTargetPixels;
}

QImage DecodeTo(const QString& path, QSize size)
{
    static std::once_flag limitSet;
    std::call_once(limitSet, [] { QImageReader::setAllocationLimit(mostMegabytesWhole); });

    OpenPicture picture(path);
    if (!IsPlausibleTarget(size) || picture.Size().isEmpty()) {
        return {};
    }
    return picture.Read(size);
}

} // namespace

PictureInfo ReadPictureInfo(const QString& path)
{
    return {OpenPicture(path).Size()};
}

QImage ReadPicture(const QString& path, QSize size)
{
    try {
        return DecodeTo(path, size);
    } catch (const std::exception&) { // out of memory: as good as damaged
        return {};
    }
}

std::vector<QImage> ReadPictures(const std::vector<PictureRequest>& requests)
{
    std::vector<QImage> images(requests.size());
    std::atomic<std::size_t> next = 0;
    const auto readUntilNoneIsLeft = [&] {
        for (std::size_t i = next++; i < requests.size(); i = next++) {
            images[i] = ReadPicture(requests[i].path, requests[i].size);
        }
    };
    // This thread takes its share; a pool of its own cannot be held up by other work.
    const int helpers = std::min(QThread::idealThreadCount(), int(requests.size())) - 1;
    QThreadPool pool;
    pool.setMaxThreadCount(std::max(helpers, 0));
    for (int i = 0; i < helpers; ++i) {
        pool.start(readUntilNoneIsLeft);
    }
    readUntilNoneIsLeft();
    pool.waitForDone();
    return images;
}
