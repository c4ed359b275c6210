// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>

#include <algorithm>
#include <functional>
#include <utility>

// Another device's bytes, which, once this is armed, pass a gate in small pieces. A gate may wait;
// one that returns false ends the file there.
class GatedDevice : public QIODevice
{
public:
    using Gate = std::function<bool()>;

    // Opens itself. The device must be open and outlive this.
    GatedDevice(QIODevice& device, Gate gate) : device_(device), gate_(std::move(gate))
    {
        open(ReadOnly | Unbuffered); // the device has a buffer or is one
    }

    // To be called when the decoder has the picture's size. Before that it may hold a lock of its
    // library, with which it must not wait.
    void Arm() { isArmed_ = true; }

    bool isSequential() const override { return device_.isSequential(); }
    qint64 size() const override { return device_.size(); }
    bool seek(qint64 position) override
    {
        return device_.seek(position) && QIODevice::seek(position);
    }

protected:
    qint64 readData(char* data, qint64 maxBytes) override
    {
        if (!isArmed_)
            return device_.read(data, maxBytes);
        constexpr qint64 pieceBytes = 4096; // a decoder takes far below a millisecond for as many
        qint64 total = 0;
        while (total < maxBytes && gate_()) {
            const qint64 got = device_.read(data + total, std::min(maxBytes - total, pieceBytes));
            if (got <= 0)
                break;
            total += got;
        }
        return total > 0 ? total : -1;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QIODevice& device_;
    Gate gate_;
    bool isArmed_ = false;
};
