// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>

#include <algorithm>

// A device that ends after the first bytes of a file. Unlike the file itself it cannot be mapped
// into memory, where truncation by another program would crash this one.
class FileWindow : public QIODevice
{
public:
    // Opens itself at the file's start. The file must be open and outlive this.
    FileWindow(QIODevice& file, qint64 bytes) : file_(file), bytes_(bytes)
    {
        open(ReadOnly | Unbuffered); // the file has a buffer
    }

    qint64 size() const override { return bytes_; }

    bool seek(qint64 position) override
    {
        at_ = position;
        return position <= bytes_ && QIODevice::seek(position);
    }

protected:
    qint64 readData(char* data, qint64 maxBytes) override
    {
        const qint64 wanted = std::min(maxBytes, bytes_ - at_);
        if (wanted <= 0 || (file_.pos() != at_ && !file_.seek(at_)))
            return -1;
        const qint64 got = file_.read(data, wanted);
        at_ += std::max<qint64>(got, 0);
        return got;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QIODevice& file_;
    qint64 bytes_;
    qint64 at_ = 0;
};
