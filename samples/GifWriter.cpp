// SPDX-License-Identifier: MIT
#include "GifWriter.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <vector>

namespace {

using Box = std::vector<QRgb>;

int Channel(QRgb color, int channel)
{
    return channel == 0 ? qRed(color) : channel == 1 ? qGreen(color) : qBlue(color);
}

int WidestChannel(const Box& box, int& width)
{
    int widest = 0;
    width = -1;
    for (int channel = 0; channel < 3; ++channel) {
        const auto [low, high] =
            std::minmax_element(box.begin(), box.end(), [channel](QRgb first, QRgb second) {
                return Channel(first, channel) < Channel(second, channel);
            });
        const int range = Channel(*high, channel) - Channel(*low, channel);
        if (range > width) {
            width = range;
            widest = channel;
        }
    }
    return widest;
}

QRgb Average(const Box& box)
{
    std::array<qint64, 3> sums = {0, 0, 0};
    for (const QRgb color : box) {
        sums[0] += qRed(color);
        sums[1] += qGreen(color);
        sums[2] += qBlue(color);
    }
    const auto count = static_cast<qint64>(box.size());
    return qRgb(static_cast<int>(sums[0] / count), static_cast<int>(sums[1] / count),
                static_cast<int>(sums[2] / count));
}

// Splits the colours at the median of their widest channel until there are enough groups.
QList<QRgb> Palette(const QImage& image)
{
    std::vector<Box> boxes(1);
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) {
            boxes.front().push_back(image.pixel(x, y));
        }
    }
    while (boxes.size() < 256) {
        size_t chosen = 0;
        double weight = 0;
        int channel = 0;
        for (size_t i = 0; i < boxes.size(); ++i) {
            int width = 0;
            const int widest = WidestChannel(boxes[i], width);
            const double here = width * static_cast<double>(boxes[i].size());
            if (here > weight && boxes[i].size() > 1) {
                weight = here;
                chosen = i;
                channel = widest;
            }
        }
        if (weight == 0) {
            break;
        }
        Box& box = boxes[chosen];
        const auto middle = box.begin() + static_cast<std::ptrdiff_t>(box.size() / 2);
        std::nth_element(box.begin(), middle, box.end(), [channel](QRgb first, QRgb second) {
            return Channel(first, channel) < Channel(second, channel);
        });
        Box upper(middle, box.end());
        box.erase(middle, box.end());
        boxes.push_back(std::move(upper));
    }
    QList<QRgb> palette;
    for (const Box& box : boxes) {
        palette.append(Average(box));
    }
    return palette;
}

QByteArray Indexes(const QImage& image, const QList<QRgb>& palette)
{
    QHash<QRgb, char> known;
    QByteArray indexes;
    indexes.reserve(static_cast<qsizetype>(image.width()) * image.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb color = image.pixel(x, y);
            auto found = known.constFind(color);
            if (found == known.constEnd()) {
                int best = 0;
                int least = std::numeric_limits<int>::max();
                for (int i = 0; i < palette.size(); ++i) {
                    const int error = std::abs(qRed(color) - qRed(palette[i])) +
                                      std::abs(qGreen(color) - qGreen(palette[i])) +
                                      std::abs(qBlue(color) - qBlue(palette[i]));
                    if (error < least) {
                        least = error;
                        best = i;
                    }
                }
                found = known.insert(color, static_cast<char>(best));
            }
            indexes.append(*found);
        }
    }
    return indexes;
}

class CodeStream
{
public:
    void Put(int code, int bits)
    {
        pending_ |= static_cast<quint32>(code) << count_;
        count_ += bits;
        while (count_ >= 8) {
            bytes_.append(static_cast<char>(pending_ & 0xFFU));
            pending_ >>= 8U;
            count_ -= 8;
        }
    }
    QByteArray Finish()
    {
        if (count_ > 0) {
            bytes_.append(static_cast<char>(pending_ & 0xFFU));
        }
        return bytes_;
    }

private:
    QByteArray bytes_;
    quint32 pending_ = 0;
    int count_ = 0;
};

QByteArray Compressed(const QByteArray& indexes)
{
    const int clear = 256;
    const int end = 257;
    CodeStream stream;
    QHash<quint32, int> table;
    int next = end + 1;
    int bits = 9;
    stream.Put(clear, bits);
    int prefix = static_cast<uchar>(indexes.front());
    for (qsizetype i = 1; i < indexes.size(); ++i) {
        const int letter = static_cast<uchar>(indexes[i]);
        const quint32 key = (static_cast<quint32>(prefix) << 8U) | static_cast<quint32>(letter);
        const auto found = table.constFind(key);
        if (found != table.constEnd()) {
            prefix = *found;
            continue;
        }
        stream.Put(prefix, bits);
        if (next == 4096) {
            stream.Put(clear, bits);
            table.clear();
            next = end + 1;
            bits = 9;
        } else {
            // A reader knows a code one step later than we do, so the width grows on the first
            // code that needs it.
            if (next == 1 << bits) {
                ++bits;
            }
            table.insert(key, next++);
        }
        prefix = letter;
    }
    stream.Put(prefix, bits);
    stream.Put(end, bits);
    return stream.Finish();
}

void Short(QByteArray& bytes, int value)
{
    bytes.append(static_cast<char>(value & 0xFF));
    bytes.append(static_cast<char>((value >> 8) & 0xFF));
}

} // namespace

bool WriteGif(const QImage& image, const QString& path)
{
    const QList<QRgb> palette = Palette(image);
    QByteArray bytes("GIF89a");
    Short(bytes, image.width());
    Short(bytes, image.height());
    bytes.append("\xF7\x00\x00", 3);
    for (int i = 0; i < 256; ++i) {
        const QRgb color = i < palette.size() ? palette[i] : 0;
        bytes.append(static_cast<char>(qRed(color)));
        bytes.append(static_cast<char>(qGreen(color)));
        bytes.append(static_cast<char>(qBlue(color)));
    }
    bytes.append("\x2C\x00\x00\x00\x00", 5);
    Short(bytes, image.width());
    Short(bytes, image.height());
    bytes.append("\x00\x08", 2);
    const QByteArray codes = Compressed(Indexes(image, palette));
    for (qsizetype at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        bytes.append(static_cast<char>(block.size()));
        bytes.append(block);
    }
    bytes.append("\x00\x3B", 2);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}
