// SPDX-License-Identifier: MIT
#pragma once

#include "platform/picture/GatedDevice.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QSize>
#include <QString>

#include <memory>

// A picture file with its decoder. Not to be copied or moved: the reader points to the device.
class OpenPicture
{
public:
    // Reads the header. While the pixels are decoded, the file's bytes pass the gate, if there is
    // one.
    explicit OpenPicture(const QString& path, GatedDevice::Gate gate = {});
    Q_DISABLE_COPY_MOVE(OpenPicture)

    // Upright; empty when the file cannot be read.
    QSize Size();

    // Decodes once; the size is upright. Returns a null image when the file cannot be read, or for
    // a size beyond any screen.
    QImage Read(QSize target);

    // Maximum memory for that in bytes, besides the picture in its final size; for a readable file.
    qint64 DecoderBytes();
    // Whether the decoder reads the file bit by bit, so that a gate can hold it at any time, and
    // does so without a lock. False where the file cannot be read.
    bool CanBeHeld();

private:
    void SetDevice();
    void SetReader(QIODevice& device);
    void ReadFromMemory();
    qint64 BytesUpToSize(const QByteArray& format);
    QSize HeaderSize();
    bool IsJpeg() const { return format_ == "jpeg"; }
    bool IsTurned() const;
    bool IsScaledByDecoder(QSize size, QSize target) const;
    bool IsPngByLine() const;
    QImage Prepared(QSize size) const;
    qint64 DecoderBytes(QSize size);
    bool BeginJpegScans();

    QFile file_;
    QByteArray format_;
    QByteArray bytes_; // of a JPEG's head, or all of it where it is decoded as a whole; of a GIF
    bool isInterlaced_ = false;
    qint64 bytesUpToSize_ = 0;
    std::unique_ptr<QIODevice> device_; // null where the decoder reads the file itself
    GatedDevice::Gate gate_;
    std::unique_ptr<GatedDevice> gated_; // on the device or file; null without a gate
    QImageReader reader_;
};
