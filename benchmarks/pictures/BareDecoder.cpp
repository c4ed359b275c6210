// SPDX-License-Identifier: MIT
#include "BareDecoder.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <thread>
#include <vector>

#include <jpeglib.h>

namespace {

constexpr int bytesPerPixel = 4;
constexpr int eighths = 8;

unsigned StepInEighths(const jpeg_decompress_struct& decoder, QSize size)
{
    const double factor = std::min(double(decoder.image_width) / size.width(),
                                   double(decoder.image_height) / size.height());
    return std::clamp(int(std::ceil(eighths / factor)), 1, eighths);
}

} // namespace

void DecodeBare(const QString& path, QSize size)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The benchmark's picture is gone");
    }
    const QByteArray bytes = file.readAll();
    jpeg_decompress_struct decoder{};
    jpeg_error_mgr errors{};
    decoder.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&decoder);
    jpeg_mem_src(&decoder, reinterpret_cast<const unsigned char*>(bytes.constData()),
                 static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&decoder, TRUE);
    decoder.scale_num = StepInEighths(decoder, size);
    decoder.scale_denom = eighths;
    decoder.out_color_space = JCS_EXT_BGRX;
    jpeg_start_decompress(&decoder);
    const std::size_t bytesPerLine = std::size_t(decoder.output_width) * bytesPerPixel;
    std::vector<unsigned char> pixels(bytesPerLine * decoder.output_height);
    while (decoder.output_scanline < decoder.output_height) {
        JSAMPROW line = pixels.data() + bytesPerLine * decoder.output_scanline;
        jpeg_read_scanlines(&decoder, &line, 1);
    }
    jpeg_finish_decompress(&decoder);
    jpeg_destroy_decompress(&decoder);
}

void DecodeAllBare(const QStringList& paths, QSize size, int threads)
{
    std::atomic<qsizetype> next = 0;
    std::vector<std::jthread> workers;
    workers.reserve(std::size_t(threads));
    for (int i = 0; i < threads; ++i) {
        workers.emplace_back([&] {
            for (qsizetype at = next++; at < paths.size(); at = next++) {
                DecodeBare(paths[at], size);
            }
        });
    }
}
