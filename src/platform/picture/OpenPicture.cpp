// SPDX-License-Identifier: MIT
#include "platform/picture/OpenPicture.h"

#include "platform/picture/FileWindow.h"
#include "platform/picture/GifFile.h"
#include "platform/picture/Heap.h"
#include "platform/picture/JpegFile.h"
#include "platform/picture/JpegScans.h"
#include "platform/picture/PictureFile.h"
#include "platform/picture/PictureScaling.h"
#include "platform/picture/PngDevice.h"
#include "platform/picture/TiffFile.h"

#include <QBuffer>
#include <QLoggingCategory>

#include <algorithm>
#include <limits>
#include <mutex>
#include <utility>

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

bool IsPlausibleTarget(QSize size)
{
    return !size.isEmpty() && size.width() <= maxTargetSide && size.height() <= maxTargetSide &&
           qint64(size.width()) * size.height() <= maxTargetPixels;
}

void SetUpLibraries()
{
    KeepOneHeap();
    // Some decoders allocate memory before they even give the size.
    QImageReader::setAllocationLimit(maxMebibytes);
    // A picture that is given up half-way is no damaged file, which is shown as such.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*.warning=false"));
}

std::mutex& LargeMutex()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace

OpenPicture::OpenPicture(const QString& path, GatedDevice::Gate gate) : gate_(std::move(gate))
{
    static std::once_flag isSetUp;
    std::call_once(isSetUp, SetUpLibraries);
    if (!OpenPictureFile(file_, path)) {
        return;
    }
    const QByteArray format = PictureFormatOf(file_);
    bytesUpToSize_ = BytesUpToSize(format);
    // Of a JPEG that large the decoder would look for the end through all that follows.
    const bool isEndless = format == "jpeg" && file_.size() > maxDecoderBytes;
    if (format.isEmpty() || isEndless || bytesUpToSize_ > maxDecoderBytes) {
        return;
    }
    format_ = format;
    reader_.setAutoDetectImageFormat(false);
    SetDevice();
}

QSize OpenPicture::Size()
{
    const QSize size = HeaderSize();
    if (!IsPlausibleSize(format_, size, file_.size()) || DecoderBytes(size) > maxDecoderBytes) {
        return {};
    }
    return IsTurned() ? size.transposed() : size;
}

QImage OpenPicture::Read(QSize target)
{
    if (!IsPlausibleTarget(target) || Size().isEmpty() || (IsJpeg() && !BeginJpegScans())) {
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
    if (gated_) {
        gated_->Arm();
    }
    if (!reader_.read(&image)) {
        return {};
    }
    CompletePalette(image);
    image = ScaledToDraw(image, unturned);
    ConvertToScreenColours(image);
    Turn(image, reader_.transformation());
    return image;
}

qint64 OpenPicture::DecoderBytes()
{
    return DecoderBytes(HeaderSize());
}

// The WebP decoder takes the whole file at once.
bool OpenPicture::CanBeHeld()
{
    return format_ != "webp" && !Size().isEmpty() && DecoderBytes() <= bytesOfLarge;
}

void OpenPicture::SetDevice()
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
    SetReader(device_ ? *device_ : file_);
}

void OpenPicture::ReadFromMemory()
{
    auto buffer = std::make_unique<QBuffer>(&bytes_);
    buffer->open(QIODevice::ReadOnly);
    SetReader(*buffer);
    device_ = std::move(buffer);
}

void OpenPicture::SetReader(QIODevice& device)
{
    if (gate_) {
        auto gated = std::make_unique<GatedDevice>(device, gate_);
        reader_.setDevice(gated.get());
        gated_ = std::move(gated);
    } else {
        reader_.setDevice(&device);
    }
    reader_.setFormat(format_);
}

// Memory that the decoder needs up to the picture's size. The file is at its start.
qint64 OpenPicture::BytesUpToSize(const QByteArray& format)
{
    if (format == "webp") {
        return 2 * WebpBytes(file_); // the file and its profile
    }
    return format == "tiff" ? TiffDecoderBytes(file_) : 0;
}

QSize OpenPicture::HeaderSize()
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

bool OpenPicture::IsTurned() const
{
    return (reader_.transformation() & QImageIOHandler::TransformationRotate90) != 0;
}

// Other decoders hold the whole picture before they scale it. The size is the one before the turn.
bool OpenPicture::IsScaledByDecoder(QSize size, QSize target) const
{
    return IsJpeg() ||
           (IsPngByLine() && target.width() <= size.width() && target.height() <= size.height());
}

bool OpenPicture::IsPngByLine() const
{
    const QImage::Format pixels = reader_.imageFormat();
    return format_ == "png" && !isInterlaced_ &&
           (pixels == QImage::Format_RGB32 || pixels == QImage::Format_ARGB32);
}

// The image that the bitmap decoder draws on. It skips pixels that the file leaves out, where
// uninitialised memory would show.
QImage OpenPicture::Prepared(QSize size) const
{
    if (format_ != "bmp") {
        return {};
    }
    QImage image(size, reader_.imageFormat());
    image.fill(0);
    return image;
}

qint64 OpenPicture::DecoderBytes(QSize size)
{
    if (IsJpeg()) {
        const qint64 wholeBytes = JpegWholeBytes(bytes_);
        return wholeBytes > 0 ? file_.size() + wholeBytes : 0;
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

// False for a picture that would take minutes.
bool OpenPicture::BeginJpegScans()
{
    if (!JpegNeedsWholePicture(bytes_)) {
        device_ = std::make_unique<JpegDevice>(bytes_, file_);
        SetReader(*device_);
        return true;
    }
    AppendJpegScans(bytes_, file_);
    ReadFromMemory();
    return HasSensibleScans(bytes_);
}
