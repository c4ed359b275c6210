// SPDX-License-Identifier: MIT
#include "platform/picture/PictureReader.h"

#include "platform/picture/FileWindow.h"
#include "platform/picture/GifFile.h"
#include "platform/picture/JpegFile.h"
#include "platform/picture/PictureFile.h"
#include "platform/picture/PictureScaling.h"
#include "platform/picture/PngDevice.h"
#include "platform/picture/TiffFile.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <exception>
#include <limits>
#include <memory>
#include <mutex>

namespace {

// For one picture while it is decoded, including the file's bytes where they are in memory.
// Together with the rest of the program, reading any file stays below 512 MiB.
constexpr int maxMebibytes = 432;
constexpr qint64 maxDecoderBytes = qint64(maxMebibytes) << 20;

// Pictures that need more than this are decoded one at a time, so that memory does not grow with
// the number of cores.
constexpr qint64 bytesOfLarge = 128LL << 20;

// Larger than any screen; guards the allocation only.
constexpr int maxTargetSide = 1 << 15;
constexpr qint64 maxTargetPixels = 64LL << 20;

// A file with its decoder. Not to be copied or moved: the reader points to the device.
class OpenPicture
{
public:
    explicit OpenPicture(const QString& path)
    {
        // Some decoders allocate memory before they even give the size.
        static std::once_flag limitSet;
        std::call_once(limitSet, [] { QImageReader::setAllocationLimit(maxMebibytes); });
        if (!OpenPictureFile(file_, path)) {
            return;
        }
        const QByteArray format = PictureFormatOf(file_);
        bytesUpToSize_ = BytesUpToSize(format);
        if (format.isEmpty() || bytesUpToSize_ > maxDecoderBytes) {
            return;
        }
        format_ = format;
        reader_.setAutoDetectImageFormat(false);
        SetDevice();
    }
    Q_DISABLE_COPY_MOVE(OpenPicture)

    // Upright; empty when the file cannot be read.
    QSize Size()
    {
        const QSize size = HeaderSize();
        if (!IsPlausibleSize(format_, size, file_.size()) || DecoderBytes(size) > maxDecoderBytes) {
            return {};
        }
        return IsTurned() ? size.transposed() : size;
    }

    QImage Read(QSize target)
    {
        if (IsJpeg() && !LoadScans()) {
            return {};
        }
        const QSize size = HeaderSize();
        std::unique_lock<std::mutex> alone(LargeMutex(), std::defer_lock);
        if (DecoderBytes(size) > bytesOfLarge) {
            alone.lock();
        }
        const QSize unturned = IsTurned() ? target.transposed() : target;
        if (IsScaledByDecoder(size, unturned)) {
            reader_.setScaledSize(unturned);
        }
        QImage image = Prepared(size);
        if (!reader_.read(&image)) {
            return {};
        }
        CompletePalette(image);
        image = ScaledToDraw(image, unturned);
        ConvertToScreenColours(image);
        Turn(image, reader_.transformation());
        return image;
    }

private:
    void SetDevice()
    {
        if (IsJpeg()) {
            bytes_ = ReadJpegHead(file_);
            return ReadFromMemory();
        }
        if (format_ == "gif") {
            bytes_ = ReadFirstOfGif(file_);
            return ReadFromMemory();
        }
        if (format_ == "png") {
            isInterlaced_ = IsInterlacedPng(file_);
            device_ = std::make_unique<PngDevice>(file_);
        } else if (format_ == "webp") {
            device_ = std::make_unique<FileWindow>(file_, WebpBytes(file_));
        } else if (format_ == "tiff") {
            device_ = std::make_unique<FileWindow>(file_, file_.size());
        }
        reader_.setDevice(device_ ? device_.get() : &file_);
        reader_.setFormat(format_);
    }

    // Memory that the decoder needs up to the picture's size. The file is at its start.
    qint64 BytesUpToSize(const QByteArray& format)
    {
        if (format == "webp") {
            return 2 * WebpBytes(file_); // the file and its profile
        }
        return format == "tiff" ? TiffDecoderBytes(file_) : 0;
    }

    // The JPEG decoder is also about a tenth faster from memory: from a file it reads 4 KiB at a
    // time.
    void ReadFromMemory()
    {
        auto buffer = std::make_unique<QBuffer>(&bytes_);
        buffer->open(QIODevice::ReadOnly);
        reader_.setDevice(buffer.get());
        reader_.setFormat(format_);
        device_ = std::move(buffer);
    }

    QSize HeaderSize()
    {
        if (format_.isEmpty()) {
            return {};
        }
        const QSize size = reader_.size();
        // A bitmap stored from the top down has a negative height.
        if (size.height() == std::numeric_limits<int>::min()) {
            return {};
        }
        return {size.width(), qAbs(size.height())};
    }

    bool IsJpeg() const { return format_ == "jpeg"; }

    bool IsTurned() const
    {
        return (reader_.transformation() & QImageIOHandler::TransformationRotate90) != 0;
    }

    // Other decoders hold the whole picture before they scale it. The size is the one before the
    // turn.
    bool IsScaledByDecoder(QSize size, QSize target) const
    {
        return IsJpeg() || (IsPngByLine() && target.width() <= size.width() &&
                            target.height() <= size.height());
    }

    bool IsPngByLine() const
    {
        const QImage::Format pixels = reader_.imageFormat();
        return format_ == "png" && !isInterlaced_ &&
               (pixels == QImage::Format_RGB32 || pixels == QImage::Format_ARGB32);
    }

    // The image that the bitmap decoder draws on. It skips pixels that the file leaves out, where
    // uninitialised memory would show.
    QImage Prepared(QSize size) const
    {
        if (format_ != "bmp") {
            return {};
        }
        QImage image(size, reader_.imageFormat());
        image.fill(0);
        return image;
    }

    // Maximum memory for decoding, besides the picture in its final size.
    qint64 DecoderBytes(QSize size)
    {
        if (IsJpeg()) {
            return file_.size() + JpegWholeBytes(bytes_);
        }
        if (IsPngByLine()) {
            return 0;
        }
        // Decoders use at least this many.
        constexpr qint64 fewestBytes = 4;
        constexpr int bitsPerByte = 8;
        const int bits = QImage::toPixelFormat(reader_.imageFormat()).bitsPerPixel();
        const qint64 count = qint64(size.width()) * size.height();
        // Whole lines are converted.
        const qint64 bytes =
            count * std::max<qint64>(bits / bitsPerByte, fewestBytes) + size.width() * fewestBytes;
        // Frames are drawn over each other.
        const int more = format_ != "webp" ? 0 : reader_.supportsAnimation() ? 3 : 1;
        return bytes + more * count * fewestBytes + bytesUpToSize_;
    }

    bool LoadScans()
    {
        AppendJpegScans(bytes_, file_);
        ReadFromMemory();
        return HasSensibleScans(bytes_);
    }

    static std::mutex& LargeMutex()
    {
        static std::mutex mutex;
        return mutex;
    }

    QFile file_;
    QByteArray format_;
    QByteArray bytes_; // of a JPEG as far as it is read, or of a GIF
    bool isInterlaced_ = false;
    qint64 bytesUpToSize_ = 0;
    std::unique_ptr<QIODevice> device_; // null where the decoder reads the file itself
    QImageReader reader_;
};

bool IsPlausibleTarget(QSize size)
{
    return !size.isEmpty() && size.width() <= maxTargetSide && size.height() <= maxTargetSide &&
           qint64(size.width()) * size.height() <= maxTargetPixels;
}

QImage DecodeTo(const QString& path, QSize size)
{
    OpenPicture picture(path);
    if (!IsPlausibleTarget(size) || picture.Size().isEmpty()) {
        return {};
    }
    return picture.Read(size);
}

} // namespace

PictureInfo ReadPictureInfo(const QString& path)
{
    try {
        return {OpenPicture(path).Size()};
    } catch (const std::exception&) { // out of memory: as good as damaged
        return {};
    }
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
    // This thread takes its share; a separate pool cannot be blocked by other work.
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
