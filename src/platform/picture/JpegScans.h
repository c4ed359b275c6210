// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

// What follows the head of a JPEG file (see JpegFile.h), up to the picture's end and without
// comments and application segments, a piece of the file at a time.
class JpegScans
{
public:
    // The file stands where the first scan's data begin; it must outlive this.
    explicit JpegScans(QIODevice& file) : file_(file) {}

    // The next bytes, about 64 KiB; empty at the end.
    QByteArray Next();

private:
    void Take(QByteArrayView piece, bool isLast, QByteArray& kept);
    void Begin(QByteArrayView segment);

    QIODevice& file_;
    QByteArray rest_;        // a marker whose segment's length is in the next piece
    qint64 segment_ = 0;     // bytes left of the segment begun
    bool isLeftOut_ = false; // that segment
    bool hasEnded_ = false;
};

// A JPEG file that is read while it is decoded: its head from memory, and then its scans.
class JpegDevice : public QIODevice
{
public:
    // Opens itself. The file stands after the head and must outlive this.
    JpegDevice(const QByteArray& head, QIODevice& file) : ready_(head), scans_(file)
    {
        open(ReadOnly | Unbuffered);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxBytes) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray ready_;
    qsizetype given_ = 0; // of ready_
    JpegScans scans_;
};
